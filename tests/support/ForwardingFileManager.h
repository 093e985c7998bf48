#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include <orvanta/platform/FileManager.h>

namespace orvanta::test {

/// The fault to inject into one file operation, if any.
struct Fault {
  /// When not ok, the operation fails with it; an operation without a status returns its absent or
  /// empty result.
  Status failure;
  /// How many bytes a write forwards before it fails.
  std::size_t bytesBeforeFailure = 0;

  static Fault none() { return {}; }
  static Fault fail(int code) { return {Status(code, "injected"_s)}; }
  static Fault cutShort(std::size_t bytes, int code) { return {Status(code, "injected"_s), bytes}; }
};

/// Called before each operation with its name, that of the member function, and the path or the
/// URL's text; for `rename` the new path.
using FileHook = std::function<Fault(std::string_view operation, std::string_view path)>;

/// A hook shared by open files, which may outlive the file manager.
class SharedHook {
 public:
  explicit SharedHook(FileHook hook) : hook_(std::make_shared<FileHook>(std::move(hook))) {}

  void set(FileHook hook) const { *hook_ = std::move(hook); }
  [[nodiscard]] Fault ask(std::string_view operation, const String& path) const {
    return *hook_ ? (*hook_)(operation, path.view()) : Fault::none();
  }
  /// The injected failure, else what `call` gives.
  template <typename Call>
  [[nodiscard]] auto orElse(std::string_view operation, const String& path, Call call) const
      -> decltype(call()) {
    Fault fault = ask(operation, path);
    if (fault.failure.ok()) {
      return call();
    }
    if constexpr (std::is_same_v<decltype(call()), Status>) {
      return std::move(fault.failure);
    } else if constexpr (requires { decltype(call())::status; }) {
      return {{}, std::move(fault.failure)};
    } else {
      return {};
    }
  }

 private:
  std::shared_ptr<FileHook> hook_;
};

/// Base of the wrappers that forward the operations of an open file or folder to `target_`.
template <typename Target>
class Forwarding : public Target {
 public:
  Forwarding(std::unique_ptr<Target> target, SharedHook hook, String path)
      : target_(std::move(target)), hook_(std::move(hook)), path_(std::move(path)) {}

 protected:
  std::unique_ptr<Target> target_;
  SharedHook hook_;
  String path_;
};

class ForwardingReadableFile final : public Forwarding<platform::ReadableFile> {
 public:
  using Forwarding::Forwarding;
  std::optional<std::size_t> read(std::span<char> buffer) override {
    return hook_.orElse("read", path_, [&] { return target_->read(buffer); });
  }
};

class ForwardingWritableFile final : public Forwarding<platform::WritableFile> {
 public:
  using Forwarding::Forwarding;
  Status write(std::string_view bytes) override {
    const Fault fault = hook_.ask("write", path_);
    if (fault.failure.ok()) {
      return target_->write(bytes);
    }
    const Status written = target_->write(bytes.substr(0, fault.bytesBeforeFailure));
    return written.ok() ? fault.failure : written;
  }
  Status sync() override {
    return hook_.orElse("sync", path_, [&] { return target_->sync(); });
  }
  /// Closes the file also when the hook makes it fail, as the system does.
  Status close() override {
    const Fault fault = hook_.ask("close", path_);
    const Status closed = target_->close();
    return fault.failure.ok() ? closed : fault.failure;
  }
};

class ForwardingFolder final : public Forwarding<platform::Folder> {
 public:
  using Forwarding::Forwarding;
  static Opening wrap(Opening opening, const SharedHook& hook, const String& path) {
    if (opening.folder != nullptr) {
      opening.folder = std::make_unique<ForwardingFolder>(std::move(opening.folder), hook, path);
    }
    return opening;
  }

  Opening openFolder(const String& name) override {
    return hook_.orElse("openFolder", at(name),
                        [&] { return wrap(target_->openFolder(name), hook_, at(name)); });
  }
  Status createFolder(const String& name) override {
    return hook_.orElse("createFolder", at(name), [&] { return target_->createFolder(name); });
  }
  Listing list() override {
    return hook_.orElse("list", path_, [&] { return target_->list(); });
  }
  Creation createFile(const String& name) override {
    return hook_.orElse("createFile", at(name), [&] {
      Creation creation = target_->createFile(name);
      if (creation.file != nullptr) {
        creation.file =
            std::make_unique<ForwardingWritableFile>(std::move(creation.file), hook_, at(name));
      }
      return creation;
    });
  }
  Status removeFile(const String& name) override {
    return hook_.orElse("removeFile", at(name), [&] { return target_->removeFile(name); });
  }
  Status removeFileUnlessLocked(const String& name) override {
    return hook_.orElse("removeFileUnlessLocked", at(name),
                        [&] { return target_->removeFileUnlessLocked(name); });
  }
  Status rename(const String& from, const String& to) override {
    return hook_.orElse("rename", at(to), [&] { return target_->rename(from, to); });
  }
  Status sync() override {
    return hook_.orElse("syncFolder", path_, [&] { return target_->sync(); });
  }

 private:
  [[nodiscard]] String at(const String& name) const { return path_.str() + '/' + name.str(); }
};

/// A file manager that forwards every operation to another one, unless its hook makes it fail.
class ForwardingFileManager final : public platform::FileManager {
 public:
  explicit ForwardingFileManager(std::shared_ptr<platform::FileManager> target, FileHook hook = {})
      : target_(std::move(target)), hook_(std::move(hook)) {}

  /// Also affects files and folders that are already open.
  void setHook(FileHook hook) { hook_.set(std::move(hook)); }

  URL cachesDirectoryURL() override {
    return hook_.orElse("cachesDirectoryURL", {}, [&] { return target_->cachesDirectoryURL(); });
  }
  bool fileExistsAtPath(const String& path) override {
    return hook_.orElse("fileExistsAtPath", path, [&] { return target_->fileExistsAtPath(path); });
  }
  platform::ItemKind itemKindAtPath(const String& path) override {
    return hook_.orElse("itemKindAtPath", path, [&] { return target_->itemKindAtPath(path); });
  }
  std::optional<platform::FileStamp> stampOfFileAtPath(const String& path) override {
    return hook_.orElse("stampOfFileAtPath", path,
                        [&] { return target_->stampOfFileAtPath(path); });
  }
  platform::Folder::Opening openFolder(const String& path) override {
    return hook_.orElse("openFolder", path, [&] {
      return ForwardingFolder::wrap(target_->openFolder(path), hook_, path);
    });
  }
  std::unique_ptr<platform::ReadableFile> openFileForReading(const String& path) override {
    using Result = std::unique_ptr<platform::ReadableFile>;
    return hook_.orElse("openFileForReading", path, [&]() -> Result {
      auto file = target_->openFileForReading(path);
      return file == nullptr
                 ? nullptr
                 : std::make_unique<ForwardingReadableFile>(std::move(file), hook_, path);
    });
  }
  Status removeItemAtURL(const URL& url) override {
    return hook_.orElse("removeItemAtURL", url.absoluteString(),
                        [&] { return target_->removeItemAtURL(url); });
  }
  Contents contentsOfDirectoryAtURL(const URL& url) override {
    return hook_.orElse("contentsOfDirectoryAtURL", url.absoluteString(),
                        [&] { return target_->contentsOfDirectoryAtURL(url); });
  }
  Status enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) override {
    return hook_.orElse("enumerateDirectoryAtURL", url.absoluteString(),
                        [&] { return target_->enumerateDirectoryAtURL(url, visit); });
  }

 private:
  std::shared_ptr<platform::FileManager> target_;
  SharedHook hook_;
};

}  // namespace orvanta::test
