// Where the name of a document, or of what a document refers to, leads.
#ifndef XML_PLACE_H_
#define XML_PLACE_H_

#include <memory>
#include <string>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/XercesDefs.hpp>

// Names mean what they mean to the XML parser, which leaves it to this library to open what they
// lead to: a URL, or else a file, and "%41" in a URL of a file is an "A". Both throw what the
// parser throws when the current directory is gone.
struct Place {
  enum class Kind {
    none,     // There is no name.
    network,  // Another machine, whatever the protocol.
    file,     // A file of this machine, there or not.
    broken,   // A URL of a file with a "%" that means nothing: the parser tells.
    tooLong   // A name of more characters than Limits.def allows, which was not looked at.
  };

  Kind kind = Kind::none;
  std::string path;  // Of the file, in UTF-8.
  // The parser's own rendering of the place, null for `none` and `tooLong`. It gives the name by
  // which messages tell of it.
  std::unique_ptr<xercesc::InputSource> parsers;

  // That of a document which the client names: a relative file name counts from the current
  // directory.
  static Place ofDocument(const XMLCh* name);
  // That of a reference, or null, in the document or schema named `base`: a relative one counts
  // from it.
  static Place ofReference(const XMLCh* base, const XMLCh* name);
};

#endif  // XML_PLACE_H_
