#include <string>

#include <gtest/gtest.h>

#include <orvanta/strings/reader/StringTableReader.h>

#include "../support/Bytes.h"
#include "CountingNew.h"

namespace orvanta::strings {
namespace {

// Repeated damage, of which something might be kept for each piece.
TEST(ReadingHeap, OfXmlStaysBelowEightTimesTheFile) {
  constexpr std::size_t kSize = 200'000;
  const std::string begin = "<plist><dict><key>a</key>";
  for (const std::string piece :
       {"<a>", "<dict>", "<array><dict>", "</a>", "<a b='", "<!--", "<![CDATA[", "<key>b</key>",
        "<key>b", "<key/><string/>", "<key>b</key>?", "<string>b", "&", "&#x;", "\xFF", "<"}) {
    for (const std::string& head :
         {begin, begin + "<string>", "<?xml encoding='ISO-8859-1'?>" + begin}) {
      const std::string file = head + test::repeated(piece, kSize / piece.size());
      std::size_t problems = 0;
      const test::HeapPeak peak;
      static_cast<void>(readStringTable(file, [&](const TableProblem&) { ++problems; }));
      EXPECT_LT(peak.bytes(), 8 * file.size()) << head << piece << ", " << problems << " problems";
    }
  }
}

}  // namespace
}  // namespace orvanta::strings
