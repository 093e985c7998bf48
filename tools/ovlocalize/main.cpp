// ovlocalize: asks the library about a folder of languages from a shell.
#include <exception>
#include <iostream>

#include "CommandLine.h"
#include "Commands.h"
#include "Escaping.h"

int main(int argc, char** argv) {
  try {
    ovlocalize::CommandLine commands;
    ovlocalize::addLanguages(commands);
    ovlocalize::addMatch(commands);
    ovlocalize::addLookup(commands);
    ovlocalize::addExplain(commands);
    ovlocalize::addDump(commands);
    ovlocalize::addUpdate(commands);
    ovlocalize::addPseudo(commands);
    ovlocalize::addClear(commands);
    ovlocalize::addCheck(commands);
    ovlocalize::addKeys(commands);
    ovlocalize::addExport(commands);
    ovlocalize::addImport(commands);
    ovlocalize::addHeader(commands);
    return commands.run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "ovlocalize: " << ovlocalize::escaped(error.what()) << '\n';
    return 1;
  }
}
