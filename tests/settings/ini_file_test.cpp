#include "settings/ini_file.h"

#include <gtest/gtest.h>

TEST(IniFile, ReadsAsTheClassicFormatIsRead) {
  const IniFile file = IniFile::Parse(
      "stray=1\r\n"
      "[User]\r\n"
      "; SCALE=99\r\n"
      "scale = 7 \r\n"
      "SCALE=8\r\n"
      "empty=\r\n"
      "quoted=\"  a b \"\r\n"
      "path=C:\\a=b;c\r\n"
      "[ FS \r\n"
      "FSX=-1\n"
      "[USER]\n"
      "late=1");
  const struct {
    const char *section, *key, *value;
  } cases[] = {{"USER", "Scale", "7"},        {"user", "empty", ""},    {"User", "quoted", "  a b "},
               {"User", "PATH", "C:\\a=b;c"}, {"fs", "fsx", "-1"},      {"User", "late", "default"},
               {"User", "stray", "default"},  {"None", "x", "default"}, {"", "stray", "default"}};
  for (const auto& c : cases)
    EXPECT_EQ(file.Read(c.section, c.key, "default"), c.value) << c.section << ' ' << c.key;
}

TEST(IniFile, AValueIsCutAt256Characters) {
  const IniFile file = IniFile::Parse("[A]\nx=" + std::string(300, 'y'));
  EXPECT_EQ(file.Read("A", "x", "").size(), 256u);
}

TEST(IniFile, WritingKeepsWhatItDoesNotTouch) {
  IniFile file = IniFile::Parse("; mine\r\n[User]\r\nScale=7\r\nOther=1\r\n\r\n[Zoo]\r\nLion=1\r\n");
  file.Write("USER", "SCALE", "9");
  file.Write("USER", "NEW", "a\nb");
  file.Write("FS", "FSX", "0");
  EXPECT_EQ(file.Text(),
            "; mine\r\n[User]\r\nSCALE=9\r\nOther=1\r\nNEW=a b\r\n\r\n[Zoo]\r\nLion=1\r\n[FS]\r\nFSX=0\r\n");
}
