#include <algorithm>
#include <array>
#include <cctype>

#include <pugixml.hpp>

#include "../Settings.h"
#include "SourceKeys.h"

namespace ovlocalize {

namespace {

// The line that holds the byte at `offset`, counted from 1.
std::size_t lineAt(std::string_view form, std::ptrdiff_t offset) {
  const auto end =
      std::min(static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0)), form.size());
  return 1 + static_cast<std::size_t>(std::count(form.begin(), form.begin() + end, '\n'));
}

bool isLocalizedWidget(std::string_view className) {
  const std::size_t scope = className.rfind(':');
  return className.substr(scope == std::string_view::npos ? 0 : scope + 1)
      .starts_with("UILocalized");
}

bool isKeyOfWidget(std::string_view property) {
  static constexpr std::array<std::string_view, 4> kTexts = {
      "text", "placeholderText", "accessibleName", "accessibleDescription"};
  return std::find(kTexts.begin(), kTexts.end(), property) != kTexts.end();
}

bool isDynamicKey(std::string_view property) {
  return property.size() > 2 && property.starts_with("ov") &&
         std::isupper(static_cast<unsigned char>(property[2])) != 0;
}

// Collects the keys of a form from the properties that hold them, strings and lists of strings.
class FormWalker : public pugi::xml_tree_walker {
 public:
  FormWalker(std::string_view form, const std::string& file, std::vector<KeyUse>& uses)
      : form_(form), file_(file), uses_(uses) {}

  bool for_each(pugi::xml_node& node) override {
    if (std::string_view(node.name()) != "property") {
      return true;
    }
    const std::string_view property = node.attribute("name").value();
    const bool isKey =
        isDynamicKey(property) ||
        (isKeyOfWidget(property) && isLocalizedWidget(node.parent().attribute("class").value()));
    if (isKey) {
      add(node.child("string"));
      for (const pugi::xml_node& item : node.child("stringlist").children("string")) {
        add(item);
      }
    }
    return true;
  }

 private:
  void add(const pugi::xml_node& text) {
    if (text.child_value()[0] != '\0') {
      uses_.push_back({text.child_value(), file_, lineAt(form_, text.offset_debug())});
    }
  }

  std::string_view form_;
  const std::string& file_;
  std::vector<KeyUse>& uses_;
};

}  // namespace

void collectFormKeys(std::string_view form, const std::string& file, std::vector<KeyUse>& uses) {
  pugi::xml_document document;
  const pugi::xml_parse_result result = document.load_buffer(form.data(), form.size());
  if (!result || !document.child("ui")) {
    throw Failure(file + " is no form of Qt Designer");
  }
  FormWalker walker(form, file, uses);
  document.traverse(walker);
}

}  // namespace ovlocalize
