// The time from the start of a process to its first localized text: ours with 40 configured
// languages, the peers with the one language that they are told to open.
#include <array>
#include <stdexcept>
#include <string>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "contenders/Application.h"
#include "contenders/Gettext.h"
#include "contenders/Icu.h"
#include "contenders/QtTranslations.h"
#include "data/Configuration.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kStrings = 2'500;
constexpr const char* kLanguage = "fr";

// A program that writes one text and exits.
class Program {
 public:
  Program(std::string path, std::vector<std::string> arguments)
      : path_(std::move(path)), arguments_(std::move(arguments)) {}
  ~Program() { finish(); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Starts the program and waits for its text.
  [[nodiscard]] std::string_view run() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
      throw std::runtime_error("no pipe");
    }
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);
    std::vector<char*> words = {path_.data()};
    for (std::string& argument : arguments_) {
      words.push_back(argument.data());
    }
    words.push_back(nullptr);
    const int failure =
        posix_spawn(&process_, path_.c_str(), &actions, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    const ssize_t size = failure == 0 ? read(ends[0], text_.data(), text_.size()) : -1;
    close(ends[0]);
    if (size <= 0) {
      throw std::runtime_error("no text from " + path_);
    }
    return {text_.data(), static_cast<std::size_t>(size)};
  }

  // Waits until the program has exited.
  void finish() {
    if (process_ != 0) {
      waitpid(process_, nullptr, 0);
      process_ = 0;
    }
  }

 private:
  std::string path_;
  std::vector<std::string> arguments_;
  pid_t process_ = 0;
  std::array<char, 4096> text_{};
};

Contender start(const std::string& name, const std::filesystem::path& folder, const Entry& asked,
                const std::string& expected) {
  const auto program =
      std::make_shared<Program>(ORVANTA_BENCH_FIRST_TEXT + name,
                                std::vector<std::string>{folder.string(), kLanguage, asked.key});
  const auto check = [program, expected, key = asked.key] {
    expectText(program->run(), expected, key);
    program->finish();
  };
  return {name, check, [program] { keep(program->run()); }, [program] { program->finish(); }};
}

}  // namespace

void firstTextRow(Bench& bench) {
  if (!bench.isWanted("first-text")) {
    return;
  }
  const ScratchFolder folder = bench.folder("first-text");
  const Application application(folder.path());
  const auto keys = makeKeys(kStrings);
  for (const Language& language : shippedLanguages()) {
    Table table = makeConfiguration(language);
    const Table strings = makeTable(language, keys);
    table.insert(table.end(), strings.begin(), strings.end());
    application.ship(language.name, table, textFormUtf16);
  }
  const Table french = makeTable(languageNamed(kLanguage), keys);
  gettext::makeCatalog(folder.path(), kLanguage, "first", french);
  icu::makeBundle(folder.path() / "icu", kLanguage, french);
  qt::makeTranslations(folder.path() / "fr.qm", french);

  const Entry& asked = french[kStrings / 2];
  Row row{.name = "first-text", .samples = 41, .warmUp = true, .goal = 2.0, .base = "empty"};
  row.contenders = {start("empty", folder.path(), asked, "nothing"),
                    start(std::string(kOurs), folder.path(), asked, asked.value),
                    start("gettext", folder.path(), asked, asked.value),
                    start("icu", folder.path() / "icu", asked, asked.value),
                    start("qt", folder.path(), asked, asked.value)};
  bench.run(std::move(row));
}

}  // namespace orvanta::bench
