#include <algorithm>
#include <charconv>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <sstream>

#include "../CommandLine.h"
#include "../Commands.h"
#include "../Escaping.h"
#include "../MessageShape.h"
#include "../ReplaceFile.h"
#include "../Tables.h"
#include "Identifiers.h"

namespace ovlocalize {

namespace {

struct HeaderRequest {
  std::string namespaceName;
  std::string output;  ///< Empty: standard output.
};

constexpr std::string_view kTop = R"(// Written by `ovlocalize header`; changes are lost.
#pragma once

#include <string_view>

#include <orvanta/messages/LocalizedMessages.h>
#include <orvanta/messages/TypedArguments.h>

)";

struct Entry {
  std::string_view key;
  std::string_view text;
  MessageShape shape;
};

// By identifier, so that the header does not depend on the order of the table.
using Entries = std::map<std::string, Entry>;

void addEntry(Entries& entries, std::string_view key, std::string_view text) {
  const std::string name = identifierFor(key);
  if (name.empty() || key.find('\0') != std::string_view::npos) {
    throw Failure("no identifier can be made of the key " + quoted(key));
  }
  MessageShape shape = messageShapeOf(text);
  if (shape.isMessage && shape.error) {
    throw Failure("the message under " + quoted(key) +
                  " is malformed: " + std::string(shape.error->reason));
  }
  const auto [other, isNew] = entries.emplace(name, Entry{key, text, std::move(shape)});
  if (!isNew) {
    throw Failure("the keys " + quoted(other->second.key) + " and " + quoted(key) +
                  " would have one identifier, " + name);
  }
}

// Positions in the order of their numbers, then names in that of the alphabet: a call stays right
// when English is worded anew.
bool standsBefore(std::string_view a, std::string_view b) {
  const auto position = [](std::string_view name) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    return error == std::errc() && end == name.data() + name.size() ? number : ~0U;
  };
  return std::pair(position(a), a) < std::pair(position(b), b);
}

struct Parameter {
  std::string_view argument;
  std::string name;
  std::string_view type;
};

std::vector<Parameter> parametersOf(const Entry& entry) {
  std::vector<Parameter> parameters;
  for (const auto& [argument, shape] : entry.shape.arguments) {
    const bool isValue = shape.isNumber == shape.isSelect;
    parameters.push_back({argument, identifierFor(argument) + "_",
                          isValue          ? "const orvanta::MessageValue&"
                          : shape.isNumber ? "const orvanta::NumberArgument&"
                                           : "const orvanta::TextArgument&"});
  }
  std::sort(parameters.begin(), parameters.end(), [](const Parameter& a, const Parameter& b) {
    return standsBefore(a.argument, b.argument);
  });
  std::set<std::string_view> names;
  for (const Parameter& parameter : parameters) {
    if (!names.insert(parameter.name).second) {
      throw Failure("two arguments of the message under " + quoted(entry.key) +
                    " would have one identifier");
    }
  }
  return parameters;
}

void writeMessage(std::ostream& out, const std::string& name, const Entry& entry) {
  std::string declared;
  std::string handed;
  std::string list;
  for (const Parameter& parameter : parametersOf(entry)) {
    const bool isValue = parameter.type.ends_with("MessageValue&");
    declared.append(", ").append(parameter.type).append(" ").append(parameter.name);
    handed.append(", ").append(parameter.name);
    list.append(list.empty() ? "{" : ", {").append(literalFor(parameter.argument));
    list.append(", ").append(parameter.name).append(isValue ? "}" : ".value()}");
  }
  out << "/// " << commentFor(entry.text) << "\n[[nodiscard]] inline orvanta::String " << name
      << "(orvanta::Localizer& localizer" << declared << ") {\n"
      << "  return orvanta::localizedMessageForKey(localizer, " << literalFor(entry.key) << ", {"
      << list << "});\n}\n/// The same of the shared localizer.\n"
      << "[[nodiscard]] inline orvanta::String " << name << "(" << declared.substr(2) << ") {\n"
      << "  return " << name << "(orvanta::Localizer::sharedLocalizer()" << handed << ");\n}\n\n";
}

std::string headerOf(const Entries& entries, const std::string& namespaceName) {
  std::ostringstream out;
  out << kTop << "namespace " << namespaceName << " {\n\n";
  for (const auto& [name, entry] : entries) {
    out << "/// " << commentFor(entry.text) << "\ninline constexpr std::string_view " << name
        << " = " << literalFor(entry.key) << ";\n";
  }
  out << "\n/// The messages under those keys, in the current language.\nnamespace messages {\n\n";
  for (const auto& [name, entry] : entries) {
    if (entry.shape.isMessage) {
      writeMessage(out, name, entry);
    }
  }
  out << "}  // namespace messages\n\n}  // namespace " << namespaceName << "\n";
  return out.str();
}

int header(const Settings& settings, const HeaderRequest& request) {
  const auto table = tableOfLanguage(settings, "en");
  Entries entries;
  for (const auto& [key, text] : table->entries()) {
    if (!isConfigurationKey(key)) {
      addEntry(entries, key, text);
    }
  }
  const std::string text = headerOf(entries, request.namespaceName);
  if (request.output.empty()) {
    std::cout << text;
  } else {
    replaceFile(request.output, text);
  }
  return 0;
}

}  // namespace

void addHeader(CommandLine& commands) {
  const auto request = std::make_shared<HeaderRequest>();
  CLI::App& command = commands.add(
      "header",
      "Write a C++ header with a constant for each key of English, and for each message a\n"
      "function whose parameters are its arguments. CMake's orvanta_add_keys runs it",
      "  ovlocalize --bundle demo/bundle header --namespace app::keys\n"
      "  ovlocalize --bundle demo/bundle header --namespace app::keys --output app/keys.h\n"
      "\n"
      "Identifiers: what is no ASCII letter or digit becomes _, once for several in a row and\n"
      "not at either end; key_ goes before a digit and before a keyword. signin.title becomes\n"
      "signin_title. Two keys with one identifier are an error.",
      [request](const Settings& settings) { return header(settings, *request); });
  command.add_option("--namespace", request->namespaceName, "The namespace of the constants")
      ->required()
      ->check([](const std::string& name) {
        return isNamespace(name) ? "" : "it is no namespace such as app::keys";
      })
      ->type_name("A::B");
  command.add_option("--output", request->output, "The file to write (default: standard output)")
      ->check(refuseEmpty)
      ->type_name("FILE.h");
}

}  // namespace ovlocalize
