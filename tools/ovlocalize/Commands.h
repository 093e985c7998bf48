#pragma once

namespace ovlocalize {

class CommandLine;

// Each function adds one command with its options; the file of the same name defines it.

void addLanguages(CommandLine& commands);
void addMatch(CommandLine& commands);
void addLookup(CommandLine& commands);
void addExplain(CommandLine& commands);
void addDump(CommandLine& commands);
void addUpdate(CommandLine& commands);
void addPseudo(CommandLine& commands);
void addClear(CommandLine& commands);
void addCheck(CommandLine& commands);
void addKeys(CommandLine& commands);
void addExport(CommandLine& commands);
void addImport(CommandLine& commands);
void addHeader(CommandLine& commands);

}  // namespace ovlocalize
