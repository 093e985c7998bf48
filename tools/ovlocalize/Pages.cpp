#include "Pages.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <vector>

#include <orvanta/locale/Version.h>

#include "Settings.h"

namespace ovlocalize {

namespace {

using Options = std::vector<const CLI::Option*>;

Options optionsOf(const CLI::App& app) {
  return app.get_options([&app](const CLI::Option* option) {
    return option->nonpositional() && option != app.get_help_ptr() && !option->get_group().empty();
  });
}

std::vector<const CLI::App*> commandsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

std::string longName(const CLI::Option& option) {
  return option.get_name(false, false).substr(0, option.get_name(false, false).find(','));
}

// As roff input: nothing in it is a request or an escape.
std::string roff(std::string_view text) {
  std::string out;
  for (const char character : text) {
    const bool beginsLine = out.empty() || out.back() == '\n';
    if (beginsLine && (character == '.' || character == '\'')) {
      out += "\\&";
    }
    if (character == '\\') {
      out += "\\e";
    } else if (character == '-') {
      out += "\\-";
    } else {
      out += character;
    }
  }
  return out;
}

void printOptions(std::ostream& out, const Options& options) {
  for (const CLI::Option* option : options) {
    out << ".TP\n\\fB" << roff(option->get_name()) << "\\fR";
    if (option->get_items_expected() > 0) {
      out << " \\fI" << roff(option->get_type_name()) << "\\fR";
    }
    out << '\n' << roff(option->get_description()) << '\n';
  }
}

void printAsItStands(std::ostream& out, const std::string& text) {
  out << ".PP\n.nf\n" << roff(text) << "\n.fi\n";
}

// The command with the words that stand before it, and its arguments.
void printSynopsis(std::ostream& out, const std::string& before, const CLI::App& command) {
  out << "\\fB" << before << roff(command.get_name()) << "\\fR [options]";
  for (const CLI::Option* option : command.get_options(
           [](const CLI::Option* candidate) { return candidate->get_positional(); })) {
    out << " \\fI" << roff(option->get_type_name()) << "\\fR"
        << (option->get_items_expected_max() > 1 ? "..." : "");
  }
  out << (commandsOf(command).empty() ? "\n" : " \\fIcommand\\fR ...\n");
}

void printCommand(std::ostream& out, const CLI::App& app, const CLI::App& command) {
  out << ".SS " << roff(command.get_name()) << '\n' << roff(command.get_description()) << "\n.PP\n";
  printSynopsis(out, app.get_name() + ' ', command);
  printOptions(out, optionsOf(command));
  printAsItStands(out, command.get_footer());
}

void printMan(std::ostream& out, const CLI::App& app, const std::string& purpose) {
  std::string title = app.get_name();
  std::transform(title.begin(), title.end(), title.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  out << ".TH " << title << R"( 1 "" ")" << app.version() << "\"\n"
      << ".SH NAME\n"
      << app.get_name() << " \\- " << roff(purpose) << "\n.SH SYNOPSIS\n";
  printSynopsis(out, "", app);
  out << ".SH DESCRIPTION\n" << roff(app.get_description()) << "\n.SH OPTIONS\n";
  printOptions(out, optionsOf(app));
  const auto commands = commandsOf(app);
  if (!commands.empty()) {
    out << ".SH COMMANDS\n";
  }
  for (const CLI::App* command : commands) {
    printCommand(out, app, *command);
  }
  out << ".SH NOTES\n";
  printAsItStands(out, app.get_footer());
}

std::string namesOf(const Options& options) {
  std::string names;
  for (const CLI::Option* option : options) {
    names += (names.empty() ? "" : " ") + longName(*option);
  }
  return names;
}

// Whether a value is one of the words "a|b". Kinds of values have names in upper case.
bool isChoice(const std::string& type) {
  return type.find('|') != std::string::npos &&
         std::none_of(type.begin(), type.end(),
                      [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

// What may stand behind an option: folders, or one of some words. Files for all others.
void printValues(std::ostream& out, const Options& options) {
  for (const CLI::Option* option : options) {
    std::string type = option->get_type_name();
    if (type == "DIR") {
      out << "    " << longName(*option)
          << ") mapfile -t COMPREPLY < <(compgen -d -- \"$word\"); return ;;\n";
    } else if (isChoice(type)) {
      std::replace(type.begin(), type.end(), '|', ' ');
      out << "    " << longName(*option) << ") mapfile -t COMPREPLY < <(compgen -W \"" << type
          << "\" -- \"$word\"); return ;;\n";
    }
  }
}

void printCompletion(std::ostream& out, const CLI::App& app) {
  const std::string& name = app.get_name();
  const auto commands = commandsOf(app);
  std::string names;
  for (const CLI::App* command : commands) {
    names += (names.empty() ? "" : " ") + command->get_name();
  }
  out << "# Completes " << name << " in bash.\n_" << name
      << "() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} command= options= earlier\n"
         "  for earlier in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
      << "    [[ \" " << names << " \" == *\" $earlier \"* ]] && command=$earlier && break\n"
      << "  done\n  case ${COMP_WORDS[COMP_CWORD-1]} in\n";
  printValues(out, optionsOf(app));
  for (const CLI::App* command : commands) {
    printValues(out, optionsOf(*command));
  }
  out << "  esac\n  case $command in\n    '') options=\"" << names << "\" ;;\n";
  for (const CLI::App* command : commands) {
    out << "    " << command->get_name() << ") options=\"" << namesOf(optionsOf(*command))
        << "\" ;;\n";
  }
  out << "  esac\n  if [[ $word == -*" << (commands.empty() ? "" : " || -z $command")
      << " ]]; then\n    mapfile -t COMPREPLY < <(compgen -W \"$options " << namesOf(optionsOf(app))
      << " --help\" -- \"$word\")\n"
      << "  else\n    mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n  fi\n}\n"
      << "complete -o filenames -F _" << name << ' ' << name << '\n';
}

void generate(const CLI::App& app, const std::string& purpose, const std::string& folder) {
  const std::string path = folder + '/' + app.get_name();
  std::ofstream man(path + ".1");
  printMan(man, app, purpose);
  std::ofstream completion(path + ".bash");
  printCompletion(completion, app);
  if (!man.flush() || !completion.flush()) {
    throw Failure("cannot write the pages into the folder " + folder);
  }
}

}  // namespace

void addVersionAndPages(CLI::App& app, const std::string& purpose) {
  app.set_version_flag("--version",
                       app.get_name() + ' ' + std::to_string(ORVANTA_VERSION_MAJOR) + '.' +
                           std::to_string(ORVANTA_VERSION_MINOR) + '.' +
                           std::to_string(ORVANTA_VERSION_PATCH),
                       "Print the version and exit");
  const auto write = [&app, purpose](const std::string& folder) {
    generate(app, purpose, folder);
    throw CLI::Success();
  };
  app.add_option_function<std::string>("--generate", write)->group("");
}

}  // namespace ovlocalize
