#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace ovlocalize {

/// Adds to a command's options `--version`, and `--generate DIR`, which its help does not list: it
/// writes the man page `<name>.1` and the completion `<name>.bash` into an existing folder, made
/// from the definitions of the options, for the build. `purpose` stands behind the command's name
/// in the man page. Parsing throws `CLI::Success` when one of the two is given, `Failure` when the
/// files cannot be written. The command must outlive its parsing.
void addVersionAndPages(CLI::App& app, const std::string& purpose);

}  // namespace ovlocalize
