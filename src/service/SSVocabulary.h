// The words of service definitions: element names, attribute names and values.
#ifndef SERVICE_SSVOCABULARY_H_
#define SERVICE_SSVOCABULARY_H_

#include <xercesc/util/XercesDefs.hpp>

// Every word once: the constant's name and its text.
#define SS_WORDS(word)                                                                             \
  word(service, "service") word(name, "name") word(implementation, "implementation")               \
      word(programName, "programName") word(dataDictFilename, "dataDictFilename") word(            \
          exitProgramName, "exitProgramName") word(properties, "properties")                       \
          word(property, "property") word(parameterTypeDefs, "parameterTypeDefs") word(            \
              operations, "operations") word(operation, "operation")                               \
              word(entryPoint, "entryPoint") word(exitPoints, "exitPoints") word(                  \
                  hiddenParameters, "hiddenParameters") word(hiddenParameter, "hiddenParameter")   \
                  word(parameters, "parameters") word(parameter, "parameter") word(field, "field") \
                      word(occurs, "occurs") word(byType, "byType") word(ref, "ref") word(         \
                          mappings, "mappings") word(mapping, "mapping") word(item, "item")        \
                          word(subscript, "subscript") word(value, "value") word(in, "in")         \
                              word(out, "out") word(io, "io") word(ws, "ws") word(java, "java")    \
                                  word(com, "com") word(xd, "xd") word(dotnet, "dotnet")           \
                                      word(command_line, "$command_line")                          \
                                          word(return_code, "$return_code") word(stdin_, "$stdin") \
                                              word(stdout_, "$stdout")

namespace SS {
#define SS_DEFINE(constant, text) inline constexpr XMLCh constant[] = u##text;
SS_WORDS(SS_DEFINE)
#undef SS_DEFINE
}  // namespace SS

#endif  // SERVICE_SSVOCABULARY_H_
