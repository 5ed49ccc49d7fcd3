#include "toolkit/import/ItemKinds.h"

#include <cstddef>
#include <string>

namespace as::toolkit {

namespace {

using Category = Picture::Category;

// What compilers of this kind compute with at most.
constexpr int mostDigits = 38;

bool isNationalText(const Picture& picture) {
  return picture.category == Category::national || picture.category == Category::nationalEdited;
}

bool isSignSeparate(const DataEntry& entry) {
  return entry.sign == SignClause::leadingSeparate || entry.sign == SignClause::trailingSeparate;
}

// Whether the usage says all there is to say of an item.
bool needsNoPicture(const Dialect& dialect, Usage usage) {
  return bytesOf(dialect, usage).has_value();
}

// ACUCOBOL's and RM/COBOL's COMP-1.
bool isShortBinary(const DataEntry& entry, const Picture* picture) {
  return entry.usage == Usage::comp1 && picture != nullptr &&
         picture->category == Category::numeric && picture->scale == 0 && picture->scaling == 0;
}

}  // namespace

const Picture* pictureOf(const CobolProgram& program, const DataEntry& entry) {
  if (entry.picture == none) return nullptr;
  const PictureEntry& picture = program.pictures[static_cast<std::size_t>(entry.picture)];
  return picture.picture ? &*picture.picture : nullptr;
}

void ItemKinds::lookAt(Index index) {
  DataEntry& entry = program_.entries[static_cast<std::size_t>(index)];
  // A record that is looked at while it is open may have got members since.
  if (entry.hasImpliedPicture && entry.hasMembers) {
    entry.picture = none;
    entry.hasImpliedPicture = false;
  }
  handDown(index, entry);
  if (entry.hasMembers) {
    lookAtGroup(entry);
  } else if (!entry.isRenaming) {
    lookAtItem(entry);
  }
}

void ItemKinds::handDown(Index index, DataEntry& entry) {
  const DataEntry* const group =
      entry.parent == none ? nullptr : &program_.entries[static_cast<std::size_t>(entry.parent)];
  entry.usageFrom = entry.ownUsage ? index : group == nullptr ? none : group->usageFrom;
  entry.usage = entry.ownUsage ? *entry.ownUsage : group == nullptr ? Usage::display : group->usage;
  if (!entry.ownUsage && group != nullptr) entry.isUnsigned = group->isUnsigned;
  const bool hasSign = entry.ownSign != SignClause::absent;
  entry.signFrom = hasSign ? index : group == nullptr ? none : group->signFrom;
  entry.sign = hasSign ? entry.ownSign : group == nullptr ? SignClause::absent : group->sign;
  const bool isHandedDown =
      dialect_.groupSync == GroupSync::ofRecords && group != nullptr && group->isSync;
  const bool isOfRecord = entry.level == 1 && dialect_.groupSync == GroupSync::ofRecords;
  entry.isSync = isHandedDown || (entry.hasOwnSync && (!entry.hasMembers || isOfRecord));
}

void ItemKinds::lookAtGroup(const DataEntry& entry) {
  if (entry.picture != none) {
    problems_.tell(EntryRule::membersOfItem, entry.place,
                   entry.name + " has a PICTURE, but members as well");
  }
  if (entry.hasOwnSync && !entry.isSync) {
    problems_.tell(EntryRule::groupSync, entry.place,
                   "SYNCHRONIZED at the group " + entry.name + " counts for nothing in dialect " +
                       dialect_.word);
  }
}

// Gives an item without a PICTURE the one that its other clauses imply.
void ItemKinds::implyPicture(DataEntry& entry) {
  if (!entry.hasImpliedPicture) {
    if (entry.picture != none || entry.impliedSize == 0 || entry.usage != Usage::display) return;
    std::string text = entry.isImpliedNumeric ? "9" : "X";
    if (entry.impliedSize > 1) text += "(" + std::to_string(entry.impliedSize) + ")";
    program_.pictures.push_back({text, readPicture(text)});
    entry.picture = static_cast<Index>(program_.pictures.size() - 1);
    entry.hasImpliedPicture = true;
  }
  const std::string& text = program_.pictures[static_cast<std::size_t>(entry.picture)].text;
  problems_.tell(
      EntryRule::impliedPicture, entry.place,
      entry.name + " has no PICTURE: the one that follows from its other clauses is " + text);
}

void ItemKinds::lookAtItem(DataEntry& entry) {
  implyPicture(entry);
  const Picture* picture = pictureOf(program_, entry);
  entry.length = 0;
  entry.boundary = 1;
  if (picture != nullptr) {
    if (isNationalText(*picture) && entry.usage == Usage::display && entry.usageFrom == none) {
      entry.usage = Usage::national;
      problems_.tell(EntryRule::nationalByDefault, entry.place,
                     entry.name + " has a PICTURE of N and no USAGE: taken for USAGE NATIONAL");
    }
    if (picture->category == Category::dbcs && entry.usage == Usage::display) {
      entry.usage = Usage::display1;
    }
    if (picture->category == Category::utf8 && entry.usage == Usage::display) {
      entry.usage = Usage::utf8;
    }
    if (picture->category == Category::externalFloat && entry.usage == Usage::display) {
      entry.usage = Usage::externalFloat;
    }
    if (entry.usage == Usage::comp6 && picture->category == Category::numeric &&
        picture->isSigned) {
      entry.usage = Usage::comp3;
      problems_.tell(EntryRule::signedComp6, entry.place,
                     entry.name + " is COMP-6 and has a sign: taken for COMP-3");
    }
    lookAtSign(entry, *picture);
  }
  if (!hasKnownSize(entry, picture)) return;
  if (entry.picture == none) picture = nullptr;
  if (entry.isSync) entry.boundary = boundaryOf(dialect_, entry.usage, entry.length);
  if (!problems_.wasNoted(EntryRule::dialectDecides)) compareDialects(entry, picture);
  entry.element = elementOf(entry, picture);
}

// A SIGN clause counts for numbers that are written out and have a sign.
void ItemKinds::lookAtSign(DataEntry& entry, const Picture& picture) {
  const bool isWritten = entry.usage == Usage::display || entry.usage == Usage::national;
  if (entry.sign == SignClause::absent ||
      (picture.category == Category::numeric && picture.isSigned && isWritten)) {
    return;
  }
  if (entry.ownSign != SignClause::absent) {
    problems_.tell(EntryRule::uselessSign, entry.place,
                   "the SIGN clause of " + entry.name + " counts for nothing");
  }
  entry.sign = SignClause::absent;
}

// Sizes and boundaries that are other ones elsewhere were decided by the dialect, not the source.
void ItemKinds::compareDialects(const DataEntry& entry, const Picture* picture) {
  // How long it is, the source says.
  if (entry.usage == Usage::utf8 && entry.byteLength != none) return;
  const bool isSeparate = isSignSeparate(entry);
  const std::optional<Picture> value = picture == nullptr ? std::nullopt : std::optional(*picture);
  for (const Dialect& other : dialects()) {
    const int bytes = bytesOf(other, entry.usage, value, isSeparate).value_or(0);
    const int boundary = entry.isSync ? boundaryOf(other, entry.usage, bytes) : 1;
    const bool isOther = bytes != entry.length;
    if (!isOther && boundary == entry.boundary) continue;
    const auto words = [isOther](const char* dialect, int size, int multiple) {
      return (isOther ? std::to_string(size) + (size == 1 ? " byte" : " bytes")
                      : "a boundary of " + std::to_string(multiple)) +
             " in dialect " + dialect;
    };
    problems_.tell(EntryRule::dialectDecides, entry.place,
                   entry.name + " has " + words(dialect_.word, entry.length, entry.boundary) +
                       " and " + words(other.word, bytes, boundary) +
                       ": the dialect decides, here and elsewhere");
    return;
  }
}

bool ItemKinds::hasKnownSize(DataEntry& entry, const Picture* picture) {
  if (isShortBinary(entry, picture)) {
    problems_.tell(EntryRule::shortBinary, entry.place,
                   entry.name +
                       " has a PICTURE with COMP-1: taken for a binary number of two bytes, "
                       "which it is to compilers that know no other COMP-1");
    entry.ownUsage = entry.usage = Usage::binaryShort;
    entry.isUnsigned = !picture->isSigned;
    entry.picture = none;
    entry.length = *bytesOf(dialect_, entry.usage);
    return true;
  }
  const bool hasOwnSize = needsNoPicture(dialect_, entry.usage);
  if (entry.picture == none && !hasOwnSize) {
    if (!entry.isDamaged) {
      problems_.tell(
          EntryRule::noPicture, entry.place,
          entry.name + (entry.usageFrom == none ? " has neither a PICTURE nor members"
                                                : std::string(" has no PICTURE, which USAGE ") +
                                                      wordOf(entry.usage) + " needs"));
    }
    return false;
  }
  if (entry.picture != none && hasOwnSize) {
    problems_.tell(EntryRule::needlessPicture, entry.place,
                   entry.name + " has a PICTURE, and USAGE " + wordOf(entry.usage) + " takes none");
    return false;
  }
  // A picture that cannot be read was told where it stands.
  if (!hasOwnSize && picture == nullptr) return false;
  const bool isSeparate =
      entry.sign == SignClause::leadingSeparate || entry.sign == SignClause::trailingSeparate;
  const auto bytesNow = [&] {
    return bytesOf(dialect_, entry.usage,
                   picture == nullptr ? std::nullopt : std::optional(*picture), isSeparate);
  };
  std::optional<int> bytes = bytesNow();
  const bool isText = picture != nullptr && picture->category != Category::numeric;
  if (!bytes && !entry.ownUsage && isText) {
    problems_.tell(EntryRule::groupUsage, entry.place,
                   entry.name + ": USAGE " + wordOf(entry.usage) +
                       " of its group does not go with its PICTURE: taken for USAGE DISPLAY");
    entry.usage = Usage::display;
    entry.usageFrom = none;
    bytes = bytesNow();
  }
  if (!bytes) {
    const bool isNumber = picture != nullptr && picture->category == Category::numeric;
    problems_.tell(EntryRule::badUsage, entry.place,
                   entry.name + ": USAGE " + wordOf(entry.usage) +
                       (isNumber ? " does not hold " + std::to_string(picture->digits) + " digits"
                                 : " does not go with its PICTURE"));
    return false;
  }
  if (picture != nullptr && picture->category == Category::numeric &&
      picture->digits > mostDigits) {
    problems_.tell(EntryRule::manyDigits, entry.place,
                   entry.name + " has " + std::to_string(picture->digits) + " digits");
  }
  entry.length = entry.usage == Usage::utf8 && entry.byteLength != none ? entry.byteLength : *bytes;
  return true;
}

ItemElement ItemKinds::elementOf(const DataEntry& entry, const Picture* picture) {
  const auto nearest = [&](const char* what, ItemElement element) {
    problems_.tell(EntryRule::otherKind, entry.place,
                   entry.name + " is " + what + ": held as the nearest kind of item");
    return element;
  };
  switch (entry.usage) {
    case Usage::pointer:
    case Usage::pointer32:
    case Usage::procedurePointer:
    case Usage::functionPointer:
      return ItemElement::pointer;
    case Usage::objectReference:
      return ItemElement::object;
    case Usage::index:
      return ItemElement::index;
    case Usage::floatExtended:
    case Usage::floatDecimal16:
    case Usage::floatDecimal34:
      return nearest("a floating-point item that dictionaries do not know",
                     ItemElement::alphanumeric);
    case Usage::bit:
      problems_.tell(EntryRule::bitStorage, entry.place,
                     entry.name + " is counted in whole bytes, not packed with its neighbours");
      return nearest("made of bits", ItemElement::alphanumeric);
    default:
      break;
  }
  if (picture == nullptr) return ItemElement::numeric;
  switch (picture->category) {
    case Category::national:
    case Category::nationalEdited:
    case Category::dbcs:
      return ItemElement::national;
    case Category::numeric:
      // Such numbers are edited ones.
      if (entry.isBlankWhenZero && entry.usage == Usage::display) return ItemElement::numericEdited;
      [[fallthrough]];
    case Category::externalFloat:
      if (entry.usage != Usage::national) return ItemElement::numeric;
      return nearest("a number in national characters", ItemElement::national);
    case Category::numericEdited:
      if (entry.usage != Usage::national) return ItemElement::numericEdited;
      return nearest("a number in national characters", ItemElement::national);
    case Category::utf8:
      return nearest("text in UTF-8", ItemElement::alphanumeric);
    case Category::boolean:
      return nearest("boolean", ItemElement::alphanumeric);
    default:
      // X(2) COMP-X is a number of two bytes.
      return isOfAllBits(entry.usage) ? ItemElement::numeric : ItemElement::alphanumeric;
  }
}

}  // namespace as::toolkit
