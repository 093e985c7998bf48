#include <orvanta/strings/ByteSink.h>
#include <orvanta/strings/ByteSource.h>

namespace orvanta::strings {

ByteSource::~ByteSource() = default;
ByteSink::~ByteSink() = default;

}  // namespace orvanta::strings
