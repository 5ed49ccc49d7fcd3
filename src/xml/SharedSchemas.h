// What the XML parser has made of the schemas of a directory, for more than one parse.
#ifndef XML_SHAREDSCHEMAS_H_
#define XML_SHAREDSCHEMAS_H_

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/util/StringPool.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include "xml/GrammarMemory.h"
#include "xml/LocalFile.h"
#include "xml/NumberType.h"
#include "xml/VorEntityResolver.h"

// Only what is in order is shared: a document that says where its schema is as it should, and a
// schema that is whole in itself and of which the parser has nothing to tell. Every other is read
// as if nothing was shared, by a parse of its own; so what is told of it is the same, and nothing
// that a document brings ever gets in here.
//
// Parsers refer to it as long as they live, and models keep their parsers: it is held by all of
// them. A schema in it stays what it is; when a file has changed another object is made.
class SharedSchemas {
 public:
  // Thrown by a parse that cannot go on with what is shared, and is to be made again.
  struct NotShared {
    // The namespace whose schema add() might add; empty when that would not help.
    std::basic_string<XMLCh> uri;
  };

  // `directory` ends in a separator.
  explicit SharedSchemas(std::string directory);
  ~SharedSchemas();
  SharedSchemas(const SharedSchemas&) = delete;
  SharedSchemas& operator=(const SharedSchemas&) = delete;

  const std::string& directory() const { return directory_; }

  // Compiles the schema of one of our namespaces, or takes note that it cannot be shared.
  // REQUIRES: not known yet, and no parse under way with this.
  void add(const XMLCh* uri);
  bool knows(const XMLCh* uri) const { return schemas_.contains(uri); }

  // The schema of `uri` for a document that says it is at `place`: one that is built in, or that
  // was added. Throws NotShared when there is none, or its file is another by now.
  xercesc::Grammar* grammarFor(const XMLCh* uri, const XMLCh* place);

  // The names that the schemas are numbered by: those that a parse comes across are to be numbered
  // behind them.
  const xercesc::XMLStringPool* names() { return grammars_.getURIStringPool(); }

  // After a failure in the midst of something, nobody knows what is whole.
  void spoil() { isSpoilt_ = true; }
  bool isSpoilt() const { return isSpoilt_; }

 private:
  struct Schema {
    std::optional<std::string_view> text;  // Of the file; none when there is no file to be read.
    xercesc::Grammar* grammar;             // Null for one that cannot be shared.
  };

  std::unique_ptr<const LocalFile> fileOf(const XMLCh* uri);
  xercesc::Grammar* builtIn(const XMLCh* uri, const LocalFile& file);

  const std::string directory_;
  VorEntityResolver resolver_;
  bool isSpoilt_ = false;
  std::map<std::basic_string<XMLCh>, Schema> schemas_;
  std::deque<std::string> texts_;  // Of those that were added.
  GrammarMemory memory_;
  NumberTypes numbers_;  // Of all grammars.
  xercesc::XMLGrammarPoolImpl grammars_{&memory_};
  std::vector<std::unique_ptr<xercesc::XMLGrammarPoolImpl>> builtIn_;  // A schema each.
};

#endif  // XML_SHAREDSCHEMAS_H_
