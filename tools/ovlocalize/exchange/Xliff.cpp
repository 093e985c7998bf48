#include <algorithm>
#include <string_view>
#include <utility>

#include <pugixml.hpp>

#include <orvanta/text/Utf8.h>

#include "../Settings.h"
#include "Formats.h"
#include "Notation.h"

namespace ovlocalize {

namespace {

constexpr const char* kNamespace = "urn:oasis:names:tc:xliff:document:1.2";
constexpr const char* kUnit = "trans-unit";

class StringWriter : public pugi::xml_writer {
 public:
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
  std::string text;
};

void addText(pugi::xml_node parent, const char* name, const std::string& text) {
  parent.append_child(name).text().set(text.c_str());
}

void addUnit(pugi::xml_node body, const Unit& unit) {
  pugi::xml_node node = body.append_child(kUnit);
  const std::string key = keyInNotation(unit.key);
  node.append_attribute("id") = key.c_str();
  node.append_attribute("resname") = key.c_str();
  node.append_attribute("xml:space") = "preserve";
  if (!unit.isForTranslators) {
    node.append_attribute("translate") = "no";
  }
  addText(node, "source", inNotation(unit.source));
  if (unit.target) {
    addText(node, "target", inNotation(*unit.target));
    node.child("target").append_attribute("state") = "translated";
  }
  if (!unit.note.empty()) {
    addText(node, "note", inNotation(unit.note));
  }
}

std::string_view localName(pugi::xml_node node) {
  const std::string_view name = node.name();
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

pugi::xml_node childNamed(pugi::xml_node node, std::string_view name) {
  return node.find_child([&](pugi::xml_node child) { return localName(child) == name; });
}

// All characters in an element, whatever elements they stand in.
class TextOf : public pugi::xml_tree_walker {
 public:
  explicit TextOf(pugi::xml_node node) { node.traverse(*this); }
  bool for_each(pugi::xml_node& node) override {
    text += node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata ? node.value() : "";
    return true;
  }
  std::string text;
};

Unit unitFrom(pugi::xml_node node) {
  Unit unit;
  const pugi::xml_attribute name = node.attribute("resname");
  unit.key = fromNotation((name ? name : node.attribute("id")).value());
  unit.source = fromNotation(TextOf(childNamed(node, "source")).text);
  const pugi::xml_node target = childNamed(node, "target");
  const std::string text = TextOf(target).text;
  if (!text.empty()) {
    unit.target = fromNotation(text);
  }
  const std::string_view state = target.attribute("state").value();
  unit.isFuzzy = state == "new" || state.starts_with("needs-");
  unit.note = fromNotation(TextOf(childNamed(node, "note")).text);
  return unit;
}

// The node behind `node` in the order of the document, outside of `node` if that is a unit: none
// stands in another.
pugi::xml_node nodeBehind(pugi::xml_node node) {
  if (localName(node) != kUnit && node.first_child()) {
    return node.first_child();
  }
  while (node && !node.next_sibling()) {
    node = node.parent();
  }
  return node.next_sibling();
}

// The units may stand in groups.
void collectUnits(pugi::xml_node root, Catalog& catalog) {
  for (pugi::xml_node node = root; node; node = nodeBehind(node)) {
    if (localName(node) == "file") {
      const std::string language = node.attribute("target-language").value();
      catalog.language = catalog.language.empty() ? language : catalog.language;
      catalog.isOfOneLanguage = catalog.isOfOneLanguage && language == catalog.language;
    } else if (localName(node) == kUnit && (node.attribute("resname") || node.attribute("id"))) {
      catalog.units.push_back(unitFrom(node));
    } else if (localName(node) == kUnit) {
      ++catalog.leftOut;
    }
  }
}

std::string lineOf(const std::string& bytes, std::ptrdiff_t offset) {
  const auto end = bytes.begin() + std::min(offset, static_cast<std::ptrdiff_t>(bytes.size()));
  return std::to_string(1 + std::count(bytes.begin(), end, '\n'));
}

}  // namespace

std::string xliffFrom(const Catalog& catalog) {
  pugi::xml_document document;
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  pugi::xml_node root = document.append_child("xliff");
  root.append_attribute("version") = "1.2";
  root.append_attribute("xmlns") = kNamespace;
  pugi::xml_node file = root.append_child("file");
  file.append_attribute("original") = catalog.table.c_str();
  file.append_attribute("source-language") = catalog.sourceLanguage.c_str();
  file.append_attribute("target-language") = catalog.language.c_str();
  file.append_attribute("datatype") = "plaintext";
  pugi::xml_node body = file.append_child("body");
  for (const Unit& unit : catalog.units) {
    addUnit(body, unit);
  }
  StringWriter writer;
  document.save(writer, "  ", pugi::format_default, pugi::encoding_utf8);
  return std::move(writer.text);
}

Catalog catalogFromXliff(const std::string& bytes, const std::string& name) {
  pugi::xml_document document;
  const pugi::xml_parse_result result =
      document.load_buffer(bytes.data(), bytes.size(), pugi::parse_default | pugi::parse_ws_pcdata);
  if (!result) {
    throw Failure(name + " is no XLIFF file: " + lineOf(bytes, result.offset) + ": " +
                  result.description());
  }
  const pugi::xml_node root = document.document_element();
  const std::string version = root.attribute("version").value();
  if (localName(root) != "xliff" || version != "1.2") {
    throw Failure(name + (localName(root) == "xliff" ? " is XLIFF " + version + ", not 1.2"
                                                     : " is no XLIFF file"));
  }
  Catalog catalog;
  collectUnits(root, catalog);
  for (const Unit& unit : catalog.units) {
    if (!orvanta::utf8::isValid(unit.key) || !orvanta::utf8::isValid(unit.target.value_or(""))) {
      throw Failure(name + " is no XLIFF file: bytes that are no valid text");
    }
  }
  return catalog;
}

}  // namespace ovlocalize
