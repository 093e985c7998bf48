#include <charconv>
#include <system_error>

#include <sys/utsname.h>

#include <orvanta/standard/StandardProcessInfo.h>

namespace orvanta::standard {

namespace {

class StandardProcessInfo final : public platform::ProcessInfo {
 public:
  explicit StandardProcessInfo(const platform::OperatingSystemVersion& version)
      : version_(version) {}

  bool isOperatingSystemAtLeastVersion(
      const platform::OperatingSystemVersion& version) const override {
    return version_ >= version;
  }

 private:
  platform::OperatingSystemVersion version_;
};

}  // namespace

platform::OperatingSystemVersion versionOfRelease(std::string_view release) noexcept {
  platform::OperatingSystemVersion version;
  for (long* number : {&version.majorVersion, &version.minorVersion, &version.patchVersion}) {
    const char* end = release.data() + release.size();
    const auto [rest, error] = std::from_chars(release.data(), end, *number);
    if (error != std::errc() || *number < 0) {
      *number = 0;
      break;
    }
    if (rest == end || *rest != '.') {
      break;
    }
    release.remove_prefix(static_cast<std::size_t>(rest + 1 - release.data()));
  }
  return version;
}

platform::OperatingSystemVersion kernelVersion() noexcept {
  utsname system{};
  return ::uname(&system) == 0 ? versionOfRelease(static_cast<const char*>(system.release))
                               : platform::OperatingSystemVersion();
}

std::shared_ptr<platform::ProcessInfo> makeProcessInfo(
    const platform::OperatingSystemVersion& version) {
  return std::make_shared<StandardProcessInfo>(version);
}

}  // namespace orvanta::standard
