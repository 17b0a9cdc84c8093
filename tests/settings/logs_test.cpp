#include "settings/logs.h"

#include <gtest/gtest.h>

#include "tests/temporary_folder.h"

TEST(InfoLog, KeepsOneOlderGenerationAndFramesItsLines) {
  const TemporaryFolder folder;
  const AppFolder home(folder.Path());
  folder.Write("VLM_Info.log", "before");
  InfoLog log;
  ASSERT_TRUE(log.Open(home));
  log.WriteInfoLog("ReadIni successful (True)");
  log.Close();
  log.WriteInfoLog("too late");
  EXPECT_EQ(folder.Read("VLM_Info.OLD"), "before");
  const std::string text = folder.Read("VLM_Info.log");
  EXPECT_EQ(text.rfind("VLM  \xB7 Version 8.6 \xB7 Build:010810 - 20", 0), 0u) << text;
  EXPECT_NE(text.find("\nReadIni successful (True)\nLogfile Closed  at: 20"), std::string::npos) << text;
  EXPECT_EQ(text.find("too late"), std::string::npos);
}

TEST(ProtocolLog, CountsErrorsFromEachOpening) {
  const TemporaryFolder folder;
  ProtocolLog log;
  log.WriteProtocol("no file yet");
  ASSERT_TRUE(log.Open(AppFolder(folder.Path())));
  log.WriteError("Check frmMap DrawMap (out of range)");
  EXPECT_EQ(log.ErrorCount(), 1);
  EXPECT_NE(folder.Read("VLM_Protocol.log").find("DrawMap"), std::string::npos);
  EXPECT_FALSE(ProtocolLog().Open(AppFolder(folder.Path() / "missing")));
}
