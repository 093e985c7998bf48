#include "JsonPayload.h"

#include <utility>
#include <vector>

#include "Json.h"
#include "Settings.h"

namespace ovlocalize {

namespace {

using orvanta::String;
using orvanta::StringsPayload;

constexpr std::size_t kDeepest = 32;

// Without the parser's own "[json.exception.parse_error.101] ".
std::string reasonOf(const Json::exception& error) {
  constexpr std::string_view kEndOfNumber = "] ";
  const std::string_view message = error.what();
  const std::size_t end = message.find(kEndOfNumber);
  return std::string(message.starts_with('[') && end != std::string_view::npos
                         ? message.substr(end + kEndOfNumber.size())
                         : message);
}

/// Builds the payload while the text is parsed: a document of the whole text would be searched for
/// every key that is added to it.
class PayloadBuilder : public nlohmann::json_sax<Json> {
 public:
  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t) override { return true; }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool binary(binary_t&) override { return true; }

  bool string(string_t& text) override {
    if (!open_.empty() && leftOut_ == 0) {
      open_.back().payload.add(std::move(open_.back().key), String(text));
    }
    return true;
  }
  bool key(string_t& key) override {
    if (leftOut_ == 0) {
      open_.back().key = String(key);
    }
    return true;
  }
  bool start_object(std::size_t) override {
    if (leftOut_ > 0 || open_.size() == kDeepest) {
      ++leftOut_;
    } else {
      open_.push_back({StringsPayload::dictionary(), {}});
    }
    return true;
  }
  bool end_object() override {
    if (leftOut_ > 0) {
      --leftOut_;
      return true;
    }
    StringsPayload closed = std::move(open_.back().payload);
    open_.pop_back();
    if (open_.empty()) {
      whole_ = std::move(closed);
    } else {
      open_.back().payload.add(std::move(open_.back().key), std::move(closed));
    }
    return true;
  }
  bool start_array(std::size_t) override {
    ++leftOut_;
    return true;
  }
  bool end_array() override {
    --leftOut_;
    return true;
  }
  bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
    problem_ = reasonOf(error);
    return false;
  }

  [[nodiscard]] const std::string& problem() const { return problem_; }
  /// Not a dictionary unless the text was an object.
  [[nodiscard]] StringsPayload take() { return std::move(whole_); }

 private:
  struct Object {
    StringsPayload payload;
    String key;  // Of the value that comes next.
  };

  std::vector<Object> open_;
  std::size_t leftOut_ = 0;  // Arrays and objects, one inside the other, that are being left out.
  StringsPayload whole_;
  std::string problem_;
};

}  // namespace

StringsPayload payloadFromJson(const std::string& json, const std::string& name) {
  PayloadBuilder builder;
  if (!Json::sax_parse(json, &builder)) {
    throw Failure(name + " is no JSON: " + builder.problem());
  }
  StringsPayload payload = builder.take();
  if (!payload.isDictionary()) {
    throw Failure(name + " is no JSON object from language to payload");
  }
  return payload;
}

}  // namespace ovlocalize
