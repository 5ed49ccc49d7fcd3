# Fails unless the file SAMPLE stands in the file README word for word.
file(READ "${README}" readme)
file(READ "${SAMPLE}" sample)
string(FIND "${readme}" "```cpp\n${sample}```" at)
if(at EQUAL -1)
  message(FATAL_ERROR "${SAMPLE} and the README differ")
endif()
