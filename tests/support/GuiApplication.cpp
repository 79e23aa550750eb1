#include <QGuiApplication>
#include <gtest/gtest.h>
#include <memory>

#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

/// Fonts need a running application; no test needs a display.
class GuiApplication : public testing::Environment {
 public:
  void SetUp() override {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("XDG_RUNTIME_DIR", folder_.Path().c_str(), 0);
    static char name[] = "print_test";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    application_ = std::make_unique<QGuiApplication>(count, arguments);
  }
  void TearDown() override { application_.reset(); }

 private:
  TempFolder folder_;
  std::unique_ptr<QGuiApplication> application_;
};

[[maybe_unused]] const testing::Environment* const kApplication =
    testing::AddGlobalTestEnvironment(new GuiApplication);

}  // namespace
}  // namespace quillon
