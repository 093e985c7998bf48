#include <orvanta/platform/FileManager.h>

namespace orvanta::platform {

ReadableFile::~ReadableFile() = default;
WritableFile::~WritableFile() = default;
Folder::~Folder() = default;
FileManager::~FileManager() = default;

}  // namespace orvanta::platform
