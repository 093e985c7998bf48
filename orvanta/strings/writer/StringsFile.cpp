#include <orvanta/strings/writer/StringsFile.h>
#include <orvanta/strings/writer/Utf16Writer.h>

namespace orvanta::strings {

Status writeStringsFile(const StringsPayload& table, ByteSink& file) {
  Utf16Writer writer(file);
  appendStringsFile(table, [&](std::string_view piece) { writer.append(piece); });
  return writer.finish();
}

Status writeStringsFile(std::string_view text, ByteSink& file) {
  Utf16Writer writer(file);
  writer.append(text);
  return writer.finish();
}

}  // namespace orvanta::strings
