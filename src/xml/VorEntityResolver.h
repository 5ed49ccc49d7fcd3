// Maps references to the system's own schemas onto local files.
#ifndef XML_VORENTITYRESOLVER_H_
#define XML_VORENTITYRESOLVER_H_

#include <xercesc/sax/EntityResolver.hpp>
#include <xercesc/sax/InputSource.hpp>

#include "xml/XStr.h"

// Documents name their schemas by http URIs that must never be fetched. Each of them, or the bare
// name of the schema's file, stands for the file of that name in the schema directory.
class VorEntityResolver : public xercesc::EntityResolver {
 public:
  VorEntityResolver() = default;
  ~VorEntityResolver() override = default;

  // The directory of the schema files, in front of which names are put as it stands: it ends in a
  // separator. Empty or null: nothing is resolved.
  void setSchemaLocation(const char* directory);
  bool hasSchemaLocation() const { return !directory_.isEmpty(); }

  // The schema directory followed directly by `fileName`.
  CXStr getLocationForSchema(const XMLCh* fileName);

  // A new source for the local file, which need not exist; null for every reference that is none
  // of ours, and when there is no schema directory. The caller owns the result. The public
  // identifier has no part in it.
  xercesc::InputSource* resolveEntity(const XMLCh* publicId, const XMLCh* systemId) override;

  // The same for the schema of a namespace, wherever a document says that it is.
  xercesc::InputSource* resolveNamespace(const XMLCh* uri);

  // Whether `systemId` stands for our schema of that very namespace.
  static bool isPlaceOf(const XMLCh* uri, const XMLCh* systemId);

 private:
  xercesc::InputSource* open(const XMLCh* fileName);

  CXStr directory_;
};

#endif  // XML_VORENTITYRESOLVER_H_
