// What the JSON of dictionaries and services has in common.
#ifndef TOOLKIT_RENDER_JSONPARTS_H_
#define TOOLKIT_RENDER_JSONPARTS_H_

#include "as/IProperty.h"
#include "toolkit/render/JsonWriter.h"
#include "toolkit/walk/TreeWalk.h"

namespace as::toolkit {

// A member `key` with an array of objects, one for each T in `list`, filled by writeMembers(T&).
template <class T, class WriteMembers>
void writeObjects(JsonWriter& writer, const char* key, as::IList* list,
                  const WriteMembers& writeMembers) {
  writer.key(key);
  writer.beginArray();
  forEachMember<T>(list, [&](T& member) {
    writer.beginObject();
    writeMembers(member);
    writer.end();
  });
  writer.end();
}

inline void writeProperties(JsonWriter& writer, as::IList* properties) {
  writeObjects<as::IProperty>(writer, "properties", properties, [&](as::IProperty& property) {
    writer.member("name", property.getName());
    writer.member("value", property.getValue());
  });
}

}  // namespace as::toolkit

#endif  // TOOLKIT_RENDER_JSONPARTS_H_
