#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/platform/FileManager.h>

namespace orvanta::test {

/// What becomes of one file operation.
struct Fault {
  /// The operation fails so. One that has no outcome gives its absent or empty result.
  std::optional<FileError> failure;
  /// A write passes on this many bytes before it fails.
  std::size_t bytesBeforeFailure = 0;

  static Fault none() { return {}; }
  static Fault fail(int code) { return {FileError{static_cast<std::uint64_t>(code), "injected"}}; }
  static Fault cutShort(std::size_t bytes, int code) {
    Fault fault = fail(code);
    fault.bytesBeforeFailure = bytes;
    return fault;
  }
};

/// A file manager that hands every operation on to another one, unless its hook says otherwise.
class ForwardingFileManager final : public platform::FileManager {
 public:
  /// Called before each operation with its name, that of the member function ("read", "write",
  /// "sync" and "close" for an open file), and the path or the URL's text.
  using Hook = std::function<Fault(std::string_view operation, std::string_view path)>;

  explicit ForwardingFileManager(std::shared_ptr<platform::FileManager> target, Hook hook = {})
      : target_(std::move(target)), hook_(std::make_shared<Hook>(std::move(hook))) {}

  /// Holds for files that are open already, too.
  void setHook(Hook hook) { *hook_ = std::move(hook); }

  URL cachesDirectoryURL() override {
    return ask("cachesDirectoryURL", {}).failure ? URL() : target_->cachesDirectoryURL();
  }
  bool fileExistsAtPath(const String& path) override {
    return !ask("fileExistsAtPath", path).failure && target_->fileExistsAtPath(path);
  }
  platform::ItemKind itemKindAtPath(const String& path) override {
    return ask("itemKindAtPath", path).failure ? platform::ItemKind::missing
                                               : target_->itemKindAtPath(path);
  }
  std::optional<platform::FileStamp> stampOfFileAtPath(const String& path) override {
    return ask("stampOfFileAtPath", path).failure ? std::nullopt : target_->stampOfFileAtPath(path);
  }
  FileOutcome createDirectoryAtURL(const URL& url) override {
    const Fault fault = ask("createDirectoryAtURL", url.absoluteString());
    return fault.failure ? fault.failure : target_->createDirectoryAtURL(url);
  }
  FileOutcome removeItemAtURL(const URL& url) override {
    const Fault fault = ask("removeItemAtURL", url.absoluteString());
    return fault.failure ? fault.failure : target_->removeItemAtURL(url);
  }
  std::vector<URL> contentsOfDirectoryAtURL(const URL& url) override {
    return ask("contentsOfDirectoryAtURL", url.absoluteString()).failure
               ? std::vector<URL>()
               : target_->contentsOfDirectoryAtURL(url);
  }
  void enumerateDirectoryAtURL(const URL& url, const EntryVisitor& visit) override {
    if (!ask("enumerateDirectoryAtURL", url.absoluteString()).failure) {
      target_->enumerateDirectoryAtURL(url, visit);
    }
  }
  std::unique_ptr<platform::ReadableFile> openFileForReading(const String& path) override {
    if (ask("openFileForReading", path).failure) {
      return nullptr;
    }
    auto file = target_->openFileForReading(path);
    return file == nullptr ? nullptr : std::make_unique<Reading>(std::move(file), hook_, path);
  }
  Creation createFile(const String& path) override {
    const Fault fault = ask("createFile", path);
    if (fault.failure) {
      return {nullptr, fault.failure};
    }
    Creation creation = target_->createFile(path);
    if (creation.file != nullptr) {
      creation.file = std::make_unique<Writing>(std::move(creation.file), hook_, path);
    }
    return creation;
  }
  FileOutcome removeFileUnlessInUse(const String& path) override {
    const Fault fault = ask("removeFileUnlessInUse", path);
    return fault.failure ? fault.failure : target_->removeFileUnlessInUse(path);
  }
  FileOutcome moveItemReplacing(const String& from, const String& to) override {
    const Fault fault = ask("moveItemReplacing", to);
    return fault.failure ? fault.failure : target_->moveItemReplacing(from, to);
  }
  FileOutcome syncDirectory(const String& path) override {
    const Fault fault = ask("syncDirectory", path);
    return fault.failure ? fault.failure : target_->syncDirectory(path);
  }

 private:
  using SharedHook = std::shared_ptr<const Hook>;

  static Fault ask(const SharedHook& hook, std::string_view operation, const String& path) {
    return *hook ? (*hook)(operation, path.view()) : Fault::none();
  }
  Fault ask(std::string_view operation, const String& path) const {
    return ask(hook_, operation, path);
  }

  class Reading final : public platform::ReadableFile {
   public:
    Reading(std::unique_ptr<platform::ReadableFile> target, SharedHook hook, String path)
        : target_(std::move(target)), hook_(std::move(hook)), path_(std::move(path)) {}
    std::optional<std::size_t> read(std::span<char> buffer) override {
      return ask(hook_, "read", path_).failure ? std::nullopt : target_->read(buffer);
    }

   private:
    std::unique_ptr<platform::ReadableFile> target_;
    SharedHook hook_;
    String path_;
  };

  class Writing final : public platform::WritableFile {
   public:
    Writing(std::unique_ptr<platform::WritableFile> target, SharedHook hook, String path)
        : target_(std::move(target)), hook_(std::move(hook)), path_(std::move(path)) {}
    FileOutcome write(std::string_view bytes) override {
      const Fault fault = ask(hook_, "write", path_);
      if (!fault.failure) {
        return target_->write(bytes);
      }
      const auto written = target_->write(bytes.substr(0, fault.bytesBeforeFailure));
      return written ? written : fault.failure;
    }
    FileOutcome sync() override {
      const Fault fault = ask(hook_, "sync", path_);
      return fault.failure ? fault.failure : target_->sync();
    }
    /// Closes even where it is told to fail, as the system does.
    FileOutcome close() override {
      const Fault fault = ask(hook_, "close", path_);
      const auto closed = target_->close();
      return fault.failure ? fault.failure : closed;
    }

   private:
    std::unique_ptr<platform::WritableFile> target_;
    SharedHook hook_;
    String path_;
  };

  std::shared_ptr<platform::FileManager> target_;
  std::shared_ptr<Hook> hook_;
};

}  // namespace orvanta::test
