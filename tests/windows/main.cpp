// The windows are tested on Qt's offscreen platform: no display is needed.
#include <gtest/gtest.h>

#include <QApplication>

#include "windows/style.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  ApplyStyle(application);
  return RUN_ALL_TESTS();
}
