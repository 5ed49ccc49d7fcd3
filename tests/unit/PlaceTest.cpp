// Tests of where names lead.
#include <gtest/gtest.h>

#include <string>

#include "support/Dom.h"
#include "support/TempDirectory.h"
#include "xml/Place.h"
#include "xml/XStr.h"

namespace {

using Kind = Place::Kind;

Place ofDocument(const std::string& name) {
  CXStr wide(name);
  const XMLCh* const text = wide;
  return Place::ofDocument(text == nullptr ? u"" : text);
}

Place ofReference(const std::string& base, const std::string& name) {
  CXStr wideBase(base);
  CXStr wideName(name);
  return Place::ofReference(wideBase, wideName);
}

TEST(Place, OfADocument) {
  const test::CurrentDirectory current;
  const std::string here = current.path();
  const struct {
    std::string name;
    Kind kind;
    std::string path;
  } rows[] = {
      {"/d/a.xml", Kind::file, "/d/a.xml"},
      {"a.xml", Kind::file, here + "/a.xml"},
      {"./b/../a.xml", Kind::file, here + "/a.xml"},
      {"/d/./a.xml", Kind::file, "/d/a.xml"},
      {"/d/../a.xml", Kind::file, "/d/../a.xml"},
      {"", Kind::file, ""},
      // Escapes belong to URLs.
      {"/d/a%20b.xml", Kind::file, "/d/a%20b.xml"},
      {"/d/a%zz.xml", Kind::file, "/d/a%zz.xml"},
      {"file:///d/a%20b.xml", Kind::file, "/d/a b.xml"},
      {"file:///d/%41%2f%6A.xml", Kind::file, "/d/A/j.xml"},
      {"file:///d/a%zz.xml", Kind::broken, ""},
      {"file:///d/a%2", Kind::broken, ""},
      {"file:///d/a%", Kind::broken, ""},
      {"file://localhost/d/a.xml", Kind::file, "/d/a.xml"},
      {"FILE:///d/a.xml", Kind::file, "/d/a.xml"},
      {"file://host/d/a.xml", Kind::network, ""},
      {"http://host/d/a.xml", Kind::network, ""},
      {"HTTPS://host/d/a.xml", Kind::network, ""},
      {"ftp://host/d/a.xml", Kind::network, ""},
      {"mailto:a", Kind::file, here + "/mailto:a"},
      {"/d/Stra\xC3\x9F"
       "e.xml",
       Kind::file,
       "/d/Stra\xC3\x9F"
       "e.xml"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Place place = ofDocument(row.name);
    EXPECT_EQ(place.kind, row.kind);
    EXPECT_EQ(place.path, row.path);
    EXPECT_NE(place.parsers, nullptr);
  }
}

TEST(Place, OfAReference) {
  const struct {
    std::string base;
    std::string name;
    Kind kind;
    std::string path;
  } rows[] = {
      {"/d/d.xml", "s.xsd", Kind::file, "/d/s.xsd"},
      {"/d/d.xml", "../e/s.xsd", Kind::file, "/e/s.xsd"},
      {"/d/d.xml", "/e/s.xsd", Kind::file, "/e/s.xsd"},
      // The one escape that counts where there is no URL.
      {"/d/d.xml", "a%20b.xsd", Kind::file, "/d/a b.xsd"},
      {"/d/d.xml", "a%41.xsd", Kind::file, "/d/a%41.xsd"},
      {"/d/d.xml", "file:///e/a%41.xsd", Kind::file, "/e/aA.xsd"},
      {"file:///d/d.xml", "a%41.xsd", Kind::file, "/d/aA.xsd"},
      {"file:///d/d.xml", "a%4", Kind::broken, ""},
      {"file://host/d/d.xml", "s.xsd", Kind::network, ""},
      {"http://host/d/d.xml", "/s.xsd", Kind::network, ""},
      {"http://host/d/d.xml", "file:///s.xsd", Kind::file, "/s.xsd"},
      {"/d/d.xml", "http://host/s.xsd", Kind::network, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.base + " " + row.name);
    const Place place = ofReference(row.base, row.name);
    EXPECT_EQ(place.kind, row.kind);
    EXPECT_EQ(place.path, row.path);
  }
}

TEST(Place, OfAReferenceWithoutABaseCountsFromTheCurrentDirectory) {
  const test::CurrentDirectory current;
  EXPECT_EQ(Place::ofReference(nullptr, u"s.xsd").path, current.path() + "/s.xsd");
}

TEST(Place, OfNoNameIsNone) {
  for (const XMLCh* base : {static_cast<const XMLCh*>(nullptr), u"", u"/d/d.xml"}) {
    const Place place = Place::ofReference(base, nullptr);
    EXPECT_EQ(place.kind, Kind::none);
    EXPECT_EQ(place.parsers, nullptr);
  }
}

// Messages tell of places by what the parser calls them.
TEST(Place, IsCalledAsTheParserCallsIt) {
  EXPECT_EQ(test::narrow(ofDocument("file:///d/a%20b.xml").parsers->getSystemId()),
            "file:///d/a%20b.xml");
  EXPECT_EQ(test::narrow(ofReference("/d/d.xml", "../s.xsd").parsers->getSystemId()), "/s.xsd");
}

}  // namespace
