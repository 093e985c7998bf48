#include "Command.h"

namespace ovlocalize {

namespace {

using namespace std::string_literals;
using testing::HasSubstr;

constexpr const char* kFile = "fr.lproj/Localizable.strings";
constexpr const char* kEnglish =
    "/* Title */\n\"a\" = \"A\";\n\"b\" = \"\";\n\n/* two\n lines */\n\"c\" = \"\\n%d "
    "C\\n\";\n\"d\" = \"D\";\n";
constexpr const char* kFormats[] = {"po", "xliff"};

class Exchange : public Command {
 protected:
  Exchange() { write("en.lproj/Localizable.strings", kEnglish); }

  // The statements of the French file, or of none.
  std::string dumped() {
    run("[ ! -e "s + kFile + " ] || $OV dump " + kFile);
    return out_;
  }
  void import(const std::string& options) {
    run("timeout 20 ${OV%% *} --bundle . import --language fr " + options);
  }
};

TEST_F(Exchange, RoundTripsEveryTable) {
  const std::pair<const char*, std::string> rows[] = {
      {"no file", ""},
      {"some translated", "\"d\" = \"D!\"; \"a\" = \"\u00C0 \\\"\\\\\\\"\";"},
      {"equal to English, and empty", "// e\r\n'a' = 'A';\r\n\r\nb = \"\";\r\nc=\"\";\r\n"},
      {"outer line feeds", "\"c\" = \"C\";\"a\" = \"\\nA\\n\";\"d\" = \"\\n\";"},
      {"keys of its own",
       "\"\" = \"e\"; \"z\" = \"z\"; \" y \" = \"  \"; \"tab\\tlf\\n\" = \"\\t\";"},
      {"no XML",
       "\"a\" = \"\\U0000\\U0001\\r\\r\\n\\UFFFE\\U0085\"; \"\\U0004<&>\\\"\" = \"]]>\"; "
       "\"b\\U0000\" = \"\";"},
      {"notation",
       "\"a\" = \"\\\\U\"; \"b\" = \"\\\\U005C\\\\u0041\\\\\"; \"\\\\U\" = \"x\\\\UD83D\\\\UZ\";"},
      {"half a surrogate pair", "\"a\" = \"\\UD83D x \\UD83D\\UDE00\";"},
      {"repeated, damaged",
       "\"a\" = \"1\"; \"a\" = \"2\"\n\"b\" \"lost\";\n\"c\" = \"a \"quote\" in it\";\n"},
      {"XML", "<plist><dict><!-- n --><key>a</key><string>&#1;&amp;</string></dict></plist>"},
      {"comment", "/* -- \\U0001 \x01 */\na = b;"},
  };
  for (const auto& [name, table] : rows) {
    for (const char* const format : kFormats) {
      SCOPED_TRACE(name + " as "s + format);
      fs::remove_all(folder_ / "fr.lproj");
      if (!table.empty()) {
        write(kFile, table);
      }
      const std::string before = dumped();
      run("${OV%% *} --bundle . export --language fr --output x --format "s + format);
      EXPECT_EQ(status_, 0) << err_;
      import("x");
      EXPECT_EQ(contents(kFile), table) << "byte for byte: " << out_ << err_;
      write(kFile, "");
      import("x");
      run("$OV dump "s + kFile + " | sort");
      std::string after = out_;
      write("before", before);
      run("sort before");
      EXPECT_EQ(after, out_) << contents("x");
    }
  }
}

TEST_F(Exchange, PutsTranslationsIntoTheFile) {
  const std::string po =
      "msgid \"\"\nmsgstr \"Language: FR\\nContent-Type: text/plain; charset=UTF-8\\n\"\n\n"
      "#. new\nmsgctxt \"z\"\nmsgid \"Z\"\nmsgstr \"zed\"\n\nmsgctxt \"d\"\nmsgid \"D\"\nmsgstr "
      "\"d\u00E9\"\n\n"
      "#, fuzzy\nmsgctxt \"a\"\nmsgid \"A\"\nmsgstr \"maybe\"\n\nmsgctxt \"c\"\nmsgid "
      "\"C\"\nmsgstr \"c\"\n\n"
      "msgctxt \"b\"\nmsgid \"B\"\nmsgstr \"\"\n\nmsgid \"no key\"\nmsgstr \"x\"\n\n#~ msgctxt "
      "\"o\"\n#~ msgid \"O\"\n#~ msgstr \"o\"\n";
  const std::string xliff =
      "\xEF\xBB\xBF<x:xliff xmlns:x='urn:oasis:names:tc:xliff:document:1.2' version='1.2'><x:file "
      "target-language='fr'><x:body><x:group>"
      "<x:trans-unit id='z'><x:source/><x:target>z<x:g "
      "id='1'>e</x:g>d</x:target><x:note>new</x:note></x:trans-unit></x:group>"
      "<x:trans-unit id='1' resname='d'><x:target>d\u00E9</x:target></x:trans-unit><x:trans-unit "
      "id='a'><x:target state='needs-translation'>maybe</x:target></x:trans-unit>"
      "<x:trans-unit id='c'><x:target><![CDATA[c]]></x:target></x:trans-unit><x:trans-unit "
      "id='b'><x:target/></x:trans-unit><x:trans-unit/></x:body></x:file></x:xliff>";
  for (const std::string& file : {po, xliff}) {
    write("x", file);
    write(kFile, "/* mine */\r\n'd' = 'old'; // x\r\n");
    import("x");
    EXPECT_EQ(out_,
              "./fr.lproj/Localizable.strings: 1 changed, 2 added, 0 unchanged; 1 not translated, "
              "1 fuzzy, 1 without a key\n")
        << err_;
    const std::string d = "/* mine */\r\n'd' = 'd\u00E9'; // x\r\n";
    EXPECT_EQ(
        contents(kFile),
        d + "\r\n/* two\r\n lines */\r\n\"c\" = \"c\";\r\n\r\n/* new */\r\n\"z\" = \"zed\";\r\n");
    import("--fuzzy x");
    EXPECT_THAT(contents(kFile), HasSubstr("\r\n/* Title */\r\n\"a\" = \"maybe\";\r\n"));
  }
}

TEST_F(Exchange, RefusesInOneLineAndWritesNothing) {
  const std::string entry = "msgctxt \"a\"\nmsgid \"A\"\nmsgstr \"x\"\n";
  const std::string open = "<xliff version='1.2'><file target-language='fr'>";
  std::string deep = open;
  for (int level = 0; level < 300'000; ++level) {
    deep += "<trans-unit><target>";
  }
  const std::tuple<const char*, std::string, const char*> rows[] = {
      {"truncated PO", entry + "msgctxt \"b\"\nmsgid \"B\"\nmsgs", "x is no PO file: 6: "},
      {"truncated string", entry + "msgctxt \"b", "x is no PO file: 4: "},
      {"no PO", "a = b;\n", "x is no PO file: 1: "},
      {"many errors", "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk\nl\nm\nn\no\np\nq\nr\ns\nt\nu\nv\nw\n",
       "x is no PO file: 1: "},
      {"key twice", entry + entry, "x is no PO file: 5: "},
      {"another encoding",
       "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=ISO-8859-1\\n\"\n\nmsgctxt "
       "\"a\"\nmsgid \"A\"\nmsgstr \"\xE9\"\n",
       "no PO file in UTF-8"},
      {"another language", "msgid \"\"\nmsgstr \"Language: de\\n\"\n\n" + entry,
       "x is for the language de, not for fr"},
      {"nothing", "", "x holds no text under a key"},
      {"XLIFF of another language", "<xliff version='1.2'><file target-language='pt-BR'/></xliff>",
       "is for the language pt-BR"},
      {"XLIFF of two languages", open + "</file><file target-language='de'/></xliff>",
       "is for several languages"},
      {"XLIFF 2", "<xliff version='2.0'/>", "x is XLIFF 2.0, not 1.2"},
      {"no XLIFF", "<plist version='1.2'/>", "x is no XLIFF file"},
      {"truncated XLIFF", open + "\n<body><trans-unit id='a'", "x is no XLIFF file: 2: "},
      {"deep XML", deep, "x is no XLIFF file: 1: "},
      {"XLIFF with a key twice", open + "<trans-unit id='a'/><trans-unit id='a'/></file></xliff>",
       "two texts under the key a"},
  };
  write(kFile, "a = b;");
  for (const auto& [name, file, message] : rows) {
    write("x", file);
    import("x");
    EXPECT_EQ(status_, 1) << name;
    EXPECT_EQ(out_, "") << name;
    EXPECT_THAT(err_, HasSubstr(message)) << name;
    EXPECT_EQ(std::count(err_.begin(), err_.end(), '\n'), 1) << name << ": " << err_;
    EXPECT_EQ(contents(kFile), "a = b;") << name;
  }
  write("x", entry);
  write(kFile, "<dict/>");
  import("x");
  EXPECT_THAT(err_, HasSubstr("cannot hold these texts")) << status_;
  // A name at which something else than a file stands, such as /dev/null.
  for (const char* command : {"export --language fr", "header --namespace a"}) {
    run("rm -f pipe && mkfifo pipe && ${OV%% *} --bundle . " + std::string(command) +
        " --output pipe; test -p pipe || echo replaced");
    EXPECT_EQ(err_, "ovlocalize: cannot write pipe: it is not a regular file\n") << command;
    EXPECT_EQ(out_, "") << command;
  }
}

}  // namespace

}  // namespace ovlocalize
