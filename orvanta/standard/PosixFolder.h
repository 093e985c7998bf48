#pragma once

#include <orvanta/platform/Folder.h>
#include <orvanta/standard/FileDescriptor.h>

namespace orvanta::standard {

/// A folder that the system has opened. When `descriptor` is not open, errno says why.
[[nodiscard]] platform::Folder::Opening makeFolder(FileDescriptor descriptor);

}  // namespace orvanta::standard
