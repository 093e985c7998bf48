#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <orvanta/standard/DirectoryStream.h>
#include <orvanta/standard/OpenFiles.h>
#include <orvanta/standard/PosixFolder.h>

namespace orvanta::standard {

namespace {

// The name as the system takes it; empty, which names nothing, for what is no name of an entry.
std::string systemName(const String& name) {
  using std::string_view_literals::operator""sv;
  const std::string_view text = name.view();
  const bool isName =
      text != "." && text != ".." && text.find_first_of("/\0"sv) == std::string_view::npos;
  return isName ? std::string(text) : std::string();
}

class PosixFolder final : public platform::Folder {
 public:
  explicit PosixFolder(FileDescriptor folder) : folder_(std::move(folder)) {}

  Opening openFolder(const String& name) override {
    return makeFolder(openDirectory(folder_.get(), systemName(name), FinalLink::refuse));
  }

  Status createFolder(const String& name) override {
    constexpr mode_t kModeBeforeUmask = 0777;
    return statusOfCall(::mkdirat(folder_.get(), systemName(name).c_str(), kModeBeforeUmask));
  }

  Listing list() override {
    // A descriptor of its own, because the position in a listing belongs to the open file.
    return listDirectory(openDirectory(folder_.get(), ".", FinalLink::refuse));
  }

  Creation createFile(const String& name) override {
    return createLockedFile(folder_.get(), systemName(name));
  }

  Status removeFile(const String& name) override {
    return statusOfCall(::unlinkat(folder_.get(), systemName(name).c_str(), 0));
  }

  Status removeFileUnlessLocked(const String& name) override {
    return removeUnlessLocked(folder_.get(), systemName(name));
  }

  Status rename(const String& from, const String& to) override {
    return statusOfCall(
        ::renameat(folder_.get(), systemName(from).c_str(), folder_.get(), systemName(to).c_str()));
  }

  Status sync() override {
    return statusOfCall(uninterrupted([&] { return ::fsync(folder_.get()); }));
  }

 private:
  FileDescriptor folder_;
};

}  // namespace

platform::Folder::Opening makeFolder(FileDescriptor descriptor) {
  if (!descriptor.isOpen()) {
    return {nullptr, systemError(errno)};
  }
  return {std::make_unique<PosixFolder>(std::move(descriptor)), {}};
}

}  // namespace orvanta::standard
