#include <charconv>
#include <system_error>

#include <sys/utsname.h>

#include <orvanta/platform/standard/StandardProcessInfo.h>

namespace orvanta::platform::standard {

namespace {

class StandardProcessInfo final : public ProcessInfo {
 public:
  explicit StandardProcessInfo(const OperatingSystemVersion& version) : version_(version) {}

  bool isOperatingSystemAtLeastVersion(const OperatingSystemVersion& version) override {
    return version_ >= version;
  }

 private:
  OperatingSystemVersion version_;
};

}  // namespace

OperatingSystemVersion versionOfRelease(std::string_view release) noexcept {
  OperatingSystemVersion version;
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

OperatingSystemVersion kernelVersion() noexcept {
  utsname system{};
  return ::uname(&system) == 0 ? versionOfRelease(static_cast<const char*>(system.release))
                               : OperatingSystemVersion();
}

std::shared_ptr<ProcessInfo> makeProcessInfo(const OperatingSystemVersion& version) {
  return std::make_shared<StandardProcessInfo>(version);
}

}  // namespace orvanta::platform::standard
