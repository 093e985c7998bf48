#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace ovlocalize {

namespace fs = std::filesystem;

/// Runs the program as a shell would.
class Command : public testing::Test {
 public:
  Command() {
    std::string name = (fs::temp_directory_path() / "ovlocalize-XXXXXX").string();
    folder_ = ::mkdtemp(name.data());
  }
  ~Command() override { fs::remove_all(folder_); }
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;

 protected:
  // Runs a shell command in which $OV is the program, in a folder of the test's own.
  void run(const std::string& command) {
    const std::string line = "cd " + folder_.string() +
                             " && OV='" OVLOCALIZE " --bundle " BUNDLE " --cache '$PWD; { " +
                             command + "\n} >out 2>err </dev/null";
    const int result = std::system(line.c_str());
    status_ = WIFEXITED(result) ? WEXITSTATUS(result) : -1;
    out_ = contents("out");
    err_ = contents("err");
  }

  // The same with a terminal as standard output. Not where the system has none to give, as in a
  // container without /dev/pts.
  [[nodiscard]] bool runOnTerminal(const std::string& command) {
    run("script -qec true /dev/null && TERM=xterm script -qec \"" + command + "\" /dev/null");
    return err_.find("failed to create pseudo-terminal") == std::string::npos;
  }

  // Makes the file's folder too.
  void write(const std::string& name, const std::string& text) const {
    fs::create_directories((folder_ / name).parent_path());
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }

  [[nodiscard]] std::string contents(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(folder_ / name, std::ios::binary).rdbuf();
    return text.str();
  }

  fs::path folder_;
  int status_ = 0;
  std::string out_;
  std::string err_;
};

}  // namespace ovlocalize
