#include <filesystem>
#include <system_error>

#include <dlfcn.h>

#include <orvanta/standard/LibraryResources.h>

namespace orvanta::standard {

namespace {

namespace fs = std::filesystem;

// As the loader knows it: for a statically linked library the program's name, which need not be a
// path at all.
fs::path fileThatHoldsThisCode() {
  static const char code = 0;
  Dl_info info{};
  return dladdr(&code, &info) != 0 && info.dli_fname != nullptr ? fs::path(info.dli_fname)
                                                                : fs::path();
}

String resourcesOfTreeAround(const fs::path& file) {
  std::error_code error;
  const fs::path folder = fs::canonical(file, error).parent_path();
  if (error) {
    return {};
  }
  for (const fs::path& root : {folder, folder.parent_path(), folder.parent_path().parent_path()}) {
    const fs::path resources = root / "share" / "orvanta" / "resources";
    if (fs::is_directory(resources, error)) {
      return resources.native();
    }
  }
  return {};
}

}  // namespace

String libraryResourcesPath() {
  const String ofLibrary = resourcesOfTreeAround(fileThatHoldsThisCode());
  return ofLibrary.isPresent() ? ofLibrary : resourcesOfTreeAround("/proc/self/exe");
}

}  // namespace orvanta::standard
