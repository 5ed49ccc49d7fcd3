#include "xml/SchemaCache.h"

const std::shared_ptr<SharedSchemas>& SchemaCache::schemasOf(const std::string& directory) {
  if (schemas_ != nullptr && (schemas_->isSpoilt() || schemas_->directory() != directory)) {
    schemas_.reset();
  }
  if (schemas_ == nullptr && !directory.empty()) {
    schemas_ = std::make_shared<SharedSchemas>(directory);
  }
  return schemas_;
}

bool SchemaCache::provide(const std::basic_string<XMLCh>& uri) {
  if (uri.empty() || schemas_->isSpoilt()) return false;
  try {
    // Models may still refer to the old one.
    if (schemas_->knows(uri.c_str()))
      schemas_ = std::make_shared<SharedSchemas>(schemas_->directory());
    schemas_->add(uri.c_str());
  } catch (...) {
    schemas_->spoil();
  }
  return !schemas_->isSpoilt();
}
