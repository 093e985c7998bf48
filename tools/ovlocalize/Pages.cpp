// The man page and the completion of bash, from the definitions of the commands.
#include <algorithm>
#include <fstream>
#include <memory>

#include "CommandLine.h"
#include "Commands.h"

namespace ovlocalize {

namespace {

using Options = std::vector<const CLI::Option*>;

Options optionsOf(const CLI::App& app) {
  return app.get_options([&app](const CLI::Option* option) {
    return option->nonpositional() && option != app.get_help_ptr();
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

void printCommand(std::ostream& out, const CLI::App& command) {
  out << ".SS " << roff(command.get_name()) << '\n'
      << roff(command.get_description()) << "\n.PP\n\\fBovlocalize " << roff(command.get_name())
      << "\\fR [options]";
  for (const CLI::Option* option : command.get_options(
           [](const CLI::Option* candidate) { return candidate->get_positional(); })) {
    out << " \\fI" << roff(option->get_type_name()) << "\\fR"
        << (option->get_items_expected_max() > 1 ? "..." : "");
  }
  out << '\n';
  printOptions(out, optionsOf(command));
  printAsItStands(out, command.get_footer());
}

void printMan(std::ostream& out, const CLI::App& app) {
  out << ".TH OVLOCALIZE 1 \"\" \"" << app.version() << "\"\n"
      << ".SH NAME\novlocalize \\- ask about and check the languages of an application\n"
      << ".SH SYNOPSIS\n\\fBovlocalize\\fR [options] \\fIcommand\\fR ...\n"
      << ".SH DESCRIPTION\n"
      << roff(app.get_description()) << "\n.SH OPTIONS\n";
  printOptions(out, optionsOf(app));
  out << ".SH COMMANDS\n";
  for (const CLI::App* command : commandsOf(app)) {
    printCommand(out, *command);
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

// What may stand behind an option: folders, or one of the words "a|b". Files for all others.
void printValues(std::ostream& out, const Options& options) {
  for (const CLI::Option* option : options) {
    std::string type = option->get_type_name();
    if (type == "DIR") {
      out << "    " << longName(*option)
          << ") mapfile -t COMPREPLY < <(compgen -d -- \"$word\"); return ;;\n";
    } else if (type.find('|') != std::string::npos) {
      std::replace(type.begin(), type.end(), '|', ' ');
      out << "    " << longName(*option) << ") mapfile -t COMPREPLY < <(compgen -W \"" << type
          << "\" -- \"$word\"); return ;;\n";
    }
  }
}

void printCompletion(std::ostream& out, const CLI::App& app) {
  const auto commands = commandsOf(app);
  std::string names;
  for (const CLI::App* command : commands) {
    names += (names.empty() ? "" : " ") + command->get_name();
  }
  out << "# Completes ovlocalize in bash.\n_ovlocalize() {\n"
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
  out << "  esac\n"
         "  if [[ $word == -* || -z $command ]]; then\n"
      << "    mapfile -t COMPREPLY < <(compgen -W \"$options " << namesOf(optionsOf(app))
      << " --help\" -- \"$word\")\n"
      << "  else\n    mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n  fi\n}\n"
      << "complete -o filenames -F _ovlocalize ovlocalize\n";
}

int generate(const CLI::App& app, const std::string& folder) {
  std::ofstream man(folder + "/ovlocalize.1");
  printMan(man, app);
  std::ofstream completion(folder + "/ovlocalize.bash");
  printCompletion(completion, app);
  if (!man.flush() || !completion.flush()) {
    throw Failure("cannot write the pages into the folder " + folder);
  }
  return 0;
}

}  // namespace

void addPages(CommandLine& commands) {
  const auto folder = std::make_shared<std::string>();
  CLI::App& command = commands.add(
      "generate", "Write the man page ovlocalize.1 and the completion ovlocalize.bash",
      "  ovlocalize generate build/pages",
      [&commands, folder](const Settings&) { return generate(commands.app(), *folder); });
  // For the build, not for people.
  command.group("");
  command.add_option("folder", *folder, "An existing folder")->required()->type_name("DIR");
}

}  // namespace ovlocalize
