#include <QApplication>
#include <gtest/gtest.h>
#include <memory>

#include "desk/qt/adapters/Theme.h"
#include "tests/support/TempFolder.h"

namespace quillon {
namespace {

/// The widgets need a running application, but no display; what the desk remembers stays in the test's
/// folder.
class QtApplication : public testing::Environment {
 public:
  void SetUp() override {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_FONT_DPI", "96", 1);
    for (const char* folder : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
      setenv(folder, folder_.Path().c_str(), 1);
    }
    static char name[] = "qt_test";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    application_ = std::make_unique<QApplication>(count, arguments);
    QApplication::setOrganizationName(QStringLiteral("Quillon"));
    Theme::Apply(*application_);
  }
  void TearDown() override { application_.reset(); }

 private:
  TempFolder folder_;
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const testing::Environment* const kApplication =
    testing::AddGlobalTestEnvironment(new QtApplication);

}  // namespace
}  // namespace quillon
