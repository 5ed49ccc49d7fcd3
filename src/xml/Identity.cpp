#include "xml/Identity.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

RTTITypeinfo RTTITypeinfo::null_type = {nullptr, nullptr, 0, nullptr, 0, nullptr};
int RTTIdyntypeid::a = 0;

namespace {
AS_IMPLEMENTATIONS_NEXT const IdentityRegistration registrationOfNullType(RTTITypeinfo::null_type,
                                                                          "NULL", nullptr, nullptr);
}

bool RTTItypeid::designates(const RTTITypeinfo& other) const noexcept {
  return isDesignated(other, *this);
}

IdentityRegistration::IdentityRegistration(RTTITypeinfo& record, const char* name,
                                           RTTITypeinfo** bases, RTTITypeinfo::StaticCast scast)
    : record_(record) {
  record.name = ::strdup(name);
  record.bases = bases;
  record.scast = scast;
  record.reserved = 0;
  if (bases == nullptr) return;
  for (RTTITypeinfo** base = bases; *base != nullptr; ++base) {
    RTTITypeinfo& of = **base;
    const auto count = static_cast<std::size_t>(of.derivedCount);
    auto grown = std::make_unique<RTTITypeinfo*[]>(count + 1);
    std::copy_n(of.derived, count, grown.get());
    grown[count] = &record;
    delete[] of.derived;
    of.derived = grown.release();
    of.derivedCount++;
  }
}

IdentityRegistration::~IdentityRegistration() {
  std::free(record_.name);  // strdup made it. NOLINT(cppcoreguidelines-no-malloc)
  record_.name = nullptr;
  if (record_.bases == nullptr) return;
  for (RTTITypeinfo** base = record_.bases; *base != nullptr; ++base) {
    RTTITypeinfo** const begin = (*base)->derived;
    RTTITypeinfo** const end = begin + (*base)->derivedCount;
    RTTITypeinfo** const found = std::find(begin, end, &record_);
    if (found != end) std::copy(found + 1, end, found);
  }
}
