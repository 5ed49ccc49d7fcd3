// The words of data dictionary documents: element names, attribute names and values.
#ifndef COBOL_DDVOCABULARY_H_
#define COBOL_DDVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

// Every word once: the constant's name and its text.
#define DD_WORDS(word)                                                                                   \
  word(accessMode, "accessMode") word(alignment, "alignment") word(all, "all") word(                     \
      alphanumeric, "alphanumeric") word(alphanumericCondition, "alphanumericCondition")                 \
      word(alphanumericConstant, "alphanumericConstant") word(                                           \
          alphanumericEdited, "alphanumericEdited") word(alphanumericRange, "alphanumericRange")         \
          word(blankWhenZero, "blankWhenZero") word(byType, "byType")                                    \
              word(callConvention, "callConvention") word(cobolObject, "cobolObject") word(              \
                  comp, "comp") word(comp1, "comp-1") word(comp2, "comp-2") word(comp3, "comp-3")        \
                  word(comp4, "comp-4") word(comp5, "comp-5") word(comp6, "comp-6") word(                \
                      compx, "comp-x") word(display, "display")                                          \
                      word(externalFloat, "externalFloat") word(dataItem, "dataItem") word(              \
                          dataItems, "dataItems") word(digits, "digits") word(dynamic, "dynamic")        \
                          word(entryPoint, "entryPoint") word(entryPoints, "entryPoints") word(          \
                              fd, "fd") word(file, "file") word(fileSection, "fileSection")              \
                              word(from, "from") word(group, "group") word(index, "index") word(         \
                                  indexed, "indexed") word(isFalse, "isFalse") word(justified,           \
                                                                                    "justified")         \
                                  word(left, "left") word(length, "length") word(li, "li") word(         \
                                      line, "line") word(lineSequential, "lineSequential")               \
                                      word(linkage, "linkage") word(ls, "ls") word(                      \
                                          minOccurs, "minOccurs") word(maxOccurs, "maxOccurs")           \
                                          word(name, "name") word(national, "national") word(            \
                                              nullConditionValue,                                        \
                                              "nullConditionValue") word(numeric, "numeric")             \
                                              word(numericCondition, "numericCondition") word(           \
                                                  numericConstant,                                       \
                                                  "numericConstant") word(numericEdited,                 \
                                                                          "numericEdit"                  \
                                                                          "ed")                          \
                                                  word(numericRange, "numericRange") word(               \
                                                      object,                                            \
                                                      "objec"                                            \
                                                      "t") word(odo,                                     \
                                                                "odo") word(offset, "offset")            \
                                                      word(parameter, "parameter") word(                 \
                                                          picture,                                       \
                                                          "picture") word(pointer, "pointer")            \
                                                          word(program, "program") word(                 \
                                                              properties,                                \
                                                              "propertie"                                \
                                                              "s") word(property, "property")            \
                                                              word(random, "random") word(               \
                                                                  redefines,                             \
                                                                  "redefine"                             \
                                                                  "s") word(reference,                   \
                                                                            "reference") word(relative,  \
                                                                                              "r"        \
                                                                                              "e"        \
                                                                                              "l"        \
                                                                                              "a"        \
                                                                                              "t"        \
                                                                                              "i"        \
                                                                                              "v"        \
                                                                                              "e")       \
                                                                  word(renames, "renames") word(         \
                                                                      returning, "returning")            \
                                                                      word(right, "right") word(         \
                                                                          sequential,                    \
                                                                          "sequentia"                    \
                                                                          "l") word(sign, "sign")        \
                                                                          word(sync, "sync") word(       \
                                                                              ti,                        \
                                                                              "ti") word(ts, "ts")       \
                                                                              word(usage, "usage") word( \
                                                                                  unicode,               \
                                                                                  "unicode")             \
                                                                                  word(to, "to")         \
                                                                                      word(              \
                                                                                          true_,         \
                                                                                          "true")        \
                                                                                          word(          \
                                                                                              value,     \
                                                                                              "va"       \
                                                                                              "lu"       \
                                                                                              "e")

namespace DD {
#define DD_DEFINE(constant, text) inline constexpr XMLCh constant[] = u##text;
DD_WORDS(DD_DEFINE)
#undef DD_DEFINE
}  // namespace DD

#endif  // COBOL_DDVOCABULARY_H_
