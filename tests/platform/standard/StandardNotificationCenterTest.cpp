#include <tests/platform/NotificationCenterSuite.h>

#include <orvanta/platform/standard/StandardNotificationCenter.h>

namespace orvanta::test {
namespace {

struct StandardFactory {
  static auto make() { return platform::standard::makeNotificationCenter(); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Standard, NotificationCenterSuite, StandardFactory);

}  // namespace
}  // namespace orvanta::test
