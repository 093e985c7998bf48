#pragma once

#include <orvanta/text/String.h>

namespace orvanta::standard {

/// The folder of the library's own resources, "share/orvanta/resources" in the tree that this
/// library was installed or built into; absent when there is none.
///
/// The tree is recognised from where it is now, so it may be moved: the folder is looked for in the
/// folder that holds the library's file and in its first and second parent ("lib", or the
/// "lib/<machine>" of Debian), then in those of the program's ("bin"), which holds the library when
/// it is linked statically.
[[nodiscard]] String libraryResourcesPath();

}  // namespace orvanta::standard
