// Documents whose bytes are not what they should be.
#include <string>
#include <vector>

#include "hostile/Row.h"
#include "hostile/Texts.h"
#include "support/Encodings.h"
#include "support/Labels.h"

namespace hostile {

namespace {

using test::encoded;
using test::encodingDeclaration;

// Bytes that are no UTF-8, or no character of XML, by their class.
struct Bytes {
  const char* label;
  std::string bytes;
  // Whether the parser takes them, behind the document, for its end: zero, and what would go on.
  bool isEnd = false;
};

const std::vector<Bytes> badBytes = {
    {"LoneContinuation", "\x80"},
    {"LastContinuation", "\xBF"},
    {"OverlongOfTwo", "\xC0\x80"},
    {"LastOverlongOfTwo", "\xC1\xBF"},
    {"OverlongOfThree", "\xE0\x80\x80"},
    {"LastOverlongOfThree", "\xE0\x9F\xBF"},
    {"OverlongOfFour", "\xF0\x80\x80\x80"},
    {"LastOverlongOfFour", "\xF0\x8F\xBF\xBF"},
    {"OverlongSlash", "\xC0\xAF"},
    {"HighSurrogate", "\xED\xA0\x80"},
    {"LowSurrogate", "\xED\xBF\xBF"},
    {"PairOfSurrogates", "\xED\xA0\x80\xED\xB0\x80"},
    {"BeyondUnicode", "\xF4\x90\x80\x80"},
    {"JustBeyondUnicode", "\xF5\x80\x80\x80"},
    {"FarBeyondUnicode", "\xF7\xBF\xBF\xBF"},
    {"OfFive", "\xF8\x88\x80\x80\x80"},
    {"OfSix", "\xFC\x84\x80\x80\x80\x80"},
    {"FE", "\xFE"},
    {"FF", "\xFF"},
    {"CutOfTwo", "\xC3", true},
    {"CutOfThree", "\xE2\x82", true},
    {"CutOfFour", "\xF0\x9F\x98", true},
    {"NoCharacterFFFE", "\xEF\xBF\xBE"},
    {"NoCharacterFFFF", "\xEF\xBF\xBF"},
    {"Null", std::string(1, '\0'), true},
    {"Control", "\x01"},
    {"Escape", "\x1B"},
    {"LastControl", "\x1F"},
};

// `text` up to the last `part`.
std::string cutBehind(const std::string& text, const std::string& part) {
  return text.substr(0, text.rfind(part) + part.size());
}

std::vector<Row> badBytesAnywhere() {
  const struct {
    const char* label;
    std::string before;
    std::string behind;
  } places[] = {
      {"InFront", "", documentOf(dictionary)},
      {"InADeclaration", "<?xml version='1.0' encoding='UTF-8", "'?>" + documentOf(dictionary)},
      {"InADoctype", "<!DOCTYPE program [<!ENTITY e '", "'>]>" + documentOf(dictionary)},
      {"InAComment", "<!--", "-->" + documentOf(dictionary)},
      {"InAnInstruction", "<?p ", "?>" + documentOf(dictionary)},
      {"BehindManyCharacters", "<!--" + std::string(100, 'x'), "-->" + documentOf(dictionary)},
      {"InAnAttribute", cutBehind(documentOf(dictionary, "<dataItems><numeric name='"), "name='"),
       "'/></dataItems></program>"},
      {"Behind", documentOf(dictionary), ""},
  };
  std::vector<Row> rows;
  for (const Bytes& bytes : badBytes) {
    for (const auto& place : places) {
      const bool isEnd = bytes.isEnd && place.behind.empty();
      rows.push_back({std::string(bytes.label) + place.label, isEnd ? model() : refused(""),
                      place.before + bytes.bytes + place.behind});
    }
  }
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Bytes, HostileDocument, testing::ValuesIn(badBytesAnywhere()),
                         test::labelOf<Row>);

std::string item(const std::string& name) {
  return documentOf(dictionary, "<dataItems><numeric name='" + name + "'/></dataItems>");
}

std::string declared(const std::string& encoding, const std::string& name = "N") {
  return encodingDeclaration(encoding) + item(name);
}

// Units of UTF-16 in place of the "@" of a document.
std::string withUnits(const std::string& units) {
  std::string text = encoded("\xEF\xBB\xBF" + item("@"), "UTF-16LE");
  const std::string at = encoded("'@'", "UTF-16LE");
  return text.replace(text.find(at) + 2, 2, units);
}

const std::string mark = "\xEF\xBB\xBF";

const Row rows[] = {
    {"HighSurrogateOfUtf16", refused(""), withUnits(std::string("\x00\xD8", 2))},
    {"LowSurrogateOfUtf16", refused(""), withUnits(std::string("\x00\xDC", 2))},
    {"SurrogatesOfUtf16InWrongOrder", refused(""), withUnits(std::string("\x00\xDC\x00\xD8", 4))},
    {"TwoHighSurrogatesOfUtf16", refused(""), withUnits(std::string("\x00\xD8\x00\xD8", 4))},
    {"SurrogatesOfUtf16", model(), withUnits(std::string("\x3D\xD8\x00\xDE", 4))},
    {"NullOfUtf16", refused(""), withUnits(std::string(2, '\0'))},
    {"NoCharacterOfUtf16", refused(""), withUnits("\xFF\xFF")},
    {"HalfAUnitOfUtf16", refused(""), withUnits("\xFF")},
    {"Utf16Cut", refused(""), encoded(mark + item("N"), "UTF-16LE").substr(0, 99)},
    {"HalfAUnitBehindUtf16", model(), encoded(mark + item("N"), "UTF-16LE") + " "},
    {"BigEndianBehindTheOtherMark", refused(""), "\xFF\xFE" + encoded(item("N"), "UTF-16BE")},
    {"Utf16DeclaredAsUtf8", refused(""), encoded(mark + declared("UTF-8"), "UTF-16LE")},
    {"Utf16DeclaredAsLatin1", refused(""), encoded(mark + declared("ISO-8859-1"), "UTF-16LE")},
    {"Utf16LEDeclaredAsUtf16BE", refused(""), encoded(declared("UTF-16BE"), "UTF-16LE")},
    {"Utf16DeclaredAsEbcdic", refused(""), encoded(mark + declared("IBM037"), "UTF-16LE")},
    {"Utf16DeclaredAsUcs4", refused(""), encoded(mark + declared("UCS-4"), "UTF-16LE")},
    {"Utf8DeclaredAsUtf16", refused(""), declared("UTF-16")},
    {"Utf8DeclaredAsUcs4", refused(""), declared("UCS-4")},
    {"Utf8DeclaredAsEbcdic", refused(""), declared("IBM037")},
    // The declaration is believed.
    {"Utf8WithAMarkDeclaredAsLatin1", model(), mark + declared("ISO-8859-1", "\xC3\x84")},
    {"Latin1OfBytesThatNoUtf8Has", model(), declared("iso-8859-1", "\xF5\xF6\xF8\xFF")},
    {"Latin1DeclaredAsUtf8", refused(""), encoded(declared("UTF-8", "\xC3\x84 "), "ISO-8859-1")},
    {"Latin1DeclaredAsAscii", refused(""), encoded(declared("US-ASCII", "\xC3\x84"), "ISO-8859-1")},
    {"EbcdicDeclaredAsUtf8", refused(""), encoded(declared("UTF-8"), "IBM037")},
    {"EbcdicDeclaredAsUtf16", refused(""), encoded(declared("UTF-16"), "IBM037")},
    {"EbcdicNotDeclared", refused(""), encoded(item("N"), "IBM037")},
    {"UnknownEncoding", refused("EBCDIC-XX-77"), declared("EBCDIC-XX-77")},
    {"EbcdicThatIsNotKnown", refused(""), encoded(declared("IBM5347"), "IBM037")},
    {"Ucs4DeclaredAsUtf8", refused(""), encoded(mark + declared("UTF-8"), "UCS-4LE")},
    {"Ucs4BeyondUnicode", refused(""),
     encoded(mark, "UCS-4LE") + std::string("\xFF\xFF\xFF\x7F", 4) + encoded(item("N"), "UCS-4LE")},
    {"Ucs4InAnUnusualOrder", refused(""), std::string("\0\0\xFF\xFE", 4) + item("N")},
    {"Ucs4Cut", refused(""), encoded(mark + item("N"), "UCS-4LE").substr(0, 4 * 99 + 3)},
    // One of those that the C library knows.
    {"Utf7", foreign(), "<?xml version='1.0' encoding='UTF-7'?>+ADw-x/>"},
    {"NoName", refused(""), encodingDeclaration("") + item("N")},
    {"NameThatIsNone", refused(""), encodingDeclaration("?!") + item("N")},
    {"NameThatIsLong", refused(""), encodingDeclaration(std::string(100000, 'U')) + item("N")},
    {"NameOfAFile", refused(""), encodingDeclaration("../../../../../etc/passwd") + item("N")},
    {"TwoMarks", refused(""), mark + mark + item("N")},
    {"TwoDeclarations", refused(""), encodingDeclaration("UTF-8") + declared("UTF-8")},
    {"BlankInFrontOfTheDeclaration", refused(""), " " + declared("UTF-8")},
    {"ReferenceToNull", refused("", 1), item("&#0;")},
    {"ReferenceToAControl", refused("", 1), item("&#1;")},
    {"ReferenceToASurrogate", refused("", 1), item("&#xD800;")},
    {"ReferenceToTwoSurrogates", refused("", 1), item("&#xD83D;&#xDE00;")},
    {"ReferenceToNoCharacter", refused("", 1), item("&#xFFFF;")},
    {"ReferenceBeyondUnicode", refused("", 1), item("&#x110000;")},
    {"ReferenceFarBeyondUnicode", refused("", 1), item("&#x100000041;")},
    {"ReferenceOfManyDigits", refused("", 1), item("&#" + std::string(100000, '9') + ";")},
    {"ReferenceOfManyZeros", model(), item("&#" + std::string(100000, '0') + "65;")},
    {"ReferenceToNothing", refused("", 1), item("&#;")},
    {"ReferenceToTheLast", model(), item("&#x10FFFD;")},
    {"ControlOfVersion11", model(), "<?xml version='1.1'?>" + item("&#1;")},
    {"BareControlOfVersion11", refused(""), "<?xml version='1.1'?>" + item("\x01")},
    {"NullOfVersion11", refused(""), "<?xml version='1.1'?>" + item("&#0;")},
    {"Version12", refused("version '1.2' of XML is not known"),
     "<?xml version='1.2'?>" + item("N")},
    {"Version2", refused(""), "<?xml version='2.0'?>" + item("N")},
    {"NoVersion", refused(""), "<?xml encoding='UTF-8'?>" + item("N")},
    {"Nothing", refused(""), ""},
    {"BlanksOnly", refused(""), " \n\t\r\n "},
    {"MarkOnly", refused(""), mark},
    {"MarkOfUtf16Only", refused(""), "\xFF\xFE"},
    {"MarkOfBigEndianUtf16Only", refused(""), "\xFE\xFF"},
    {"MarkOfUcs4Only", refused(""), std::string("\xFF\xFE\0\0", 4)},
    {"MarkAndBlanks", refused(""), mark + " \n"},
    {"DeclarationOnly", refused(""), encodingDeclaration("UTF-8")},
    {"CommentOnly", refused(""), "<!-- -->"},
    {"NullsOnly", refused(""), std::string(100, '\0')},
    {"ManyNulls", refused(""), std::string(1000000, '\0')},
};

INSTANTIATE_TEST_SUITE_P(Encoding, HostileDocument, testing::ValuesIn(rows), test::labelOf<Row>);

}  // namespace

}  // namespace hostile
