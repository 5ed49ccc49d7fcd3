// Tests of characters that no document can hold: they are refused when the service is written.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "as/AgentServices.h"
#include "support/Labels.h"
#include "support/Model.h"
#include "support/ModelText.h"
#include "support/Requests.h"
#include "support/ServiceSamples.h"
#include "support/TempDirectory.h"

namespace {

using test::contentOf;
using test::everything;
using test::itemOf;
using test::modelText;
using test::parseService;
using test::rootOf;
using test::TempDirectory;
using test::written;
using test::samples::web;

constexpr char failure[] = "AgentServices: An error occurred serializing the XML to file ";

struct Setter {
  const char* label;
  void (*set)(as::IService& service, const char* text);
  std::string (*get)(as::IService& service);
};

void PrintTo(const Setter& setter, std::ostream* out) { *out << setter.label; }

as::IWSOperation* operationOf(as::IService& service) {
  return test::operationOf<as::IWSOperation>(service);
}

as::IHiddenParameter* hiddenOf(as::IService& service) {
  return itemOf<as::IHiddenParameter>(operationOf(service)->getHiddenParameters(), 0);
}

as::IWSFault* faultOf(as::IService& service) {
  return itemOf<as::IWSFault>(operationOf(service)->getFaults(), 0);
}

const Setter setters[] = {
    {"ServiceName", [](as::IService& s, const char* text) { s.setName(text); },
     [](as::IService& s) { return s.getName(); }},
    {"Dictionary", [](as::IService& s, const char* text) { s.setDDFilename(text); },
     [](as::IService& s) { return s.getDDFilename(); }},
    {"ExitProgram", [](as::IService& s, const char* text) { s.setExitProgramName(text); },
     [](as::IService& s) { return s.getExitProgramName(); }},
    {"OperationName", [](as::IService& s, const char* text) { operationOf(s)->setName(text); },
     [](as::IService& s) { return operationOf(s)->getName(); }},
    {"InputNamespace",
     [](as::IService& s, const char* text) { operationOf(s)->setInputNamespace(text); },
     [](as::IService& s) { return operationOf(s)->getInputNamespace(); }},
    {"OutputNamespace",
     [](as::IService& s, const char* text) { operationOf(s)->setOutputNamespace(text); },
     [](as::IService& s) { return operationOf(s)->getOutputNamespace(); }},
    {"ParameterName",
     [](as::IService& s, const char* text) {
       test::parameterOf<as::IWSParameter>(s)->setName(text);
     },
     [](as::IService& s) { return test::parameterOf<as::IWSParameter>(s)->getName(); }},
    {"ParameterNamespace",
     [](as::IService& s, const char* text) {
       test::parameterOf<as::IWSParameter>(s)->setNamespace(text);
     },
     [](as::IService& s) { return test::parameterOf<as::IWSParameter>(s)->getNamespace(); }},
    {"HiddenValue", [](as::IService& s, const char* text) { hiddenOf(s)->setValue(text); },
     [](as::IService& s) { return hiddenOf(s)->getValue(); }},
    {"HeaderNamespace",
     [](as::IService& s, const char* text) { test::headerOf(s)->setNamespace(text); },
     [](as::IService& s) { return test::headerOf(s)->getNamespace(); }},
    {"FaultNamespace", [](as::IService& s, const char* text) { faultOf(s)->setNamespace(text); },
     [](as::IService& s) { return faultOf(s)->getNamespace(); }},
};

class CharactersOfNoDocument : public testing::TestWithParam<Setter> {
 protected:
  // The text of the exception that writing ends in; empty when it ends in none.
  static std::string failureOf(as::IService& service) {
    try {
      written(service);
    } catch (const as::CASException& exception) {
      return exception.getErrorText();
    }
    return "";
  }

  std::vector<std::string> texts() const {
    std::vector<std::string> result = {"\xEF\xBF\xBE", "\xEF\xBF\xBF", "a\x0B", "<\x1F>"};
    for (char c = 1; c < ' '; c++) {
      if (c != '\t' && c != '\n' && c != '\r') result.push_back(std::string("x") + c + "y");
    }
    return result;
  }

  const std::unique_ptr<as::IService> service_ = parseService(rootOf(web, everything(web)));
};

TEST_P(CharactersOfNoDocument, AreNotWritten) {
  for (const std::string& text : texts()) {
    GetParam().set(*service_, text.c_str());
    EXPECT_EQ(failureOf(*service_), failure) << testing::PrintToString(text);
  }
}

TEST_P(CharactersOfNoDocument, LeaveTheModelReadable) {
  for (const std::string& text : texts()) {
    GetParam().set(*service_, text.c_str());
    const std::string before = modelText(*service_);
    failureOf(*service_);
    EXPECT_EQ(GetParam().get(*service_), text);
    EXPECT_EQ(modelText(*service_), before);
  }
}

TEST_P(CharactersOfNoDocument, CanBeReplaced) {
  const auto untouched = parseService(rootOf(web, everything(web)));
  GetParam().set(*service_, "good");
  GetParam().set(*untouched, "good");
  GetParam().set(*service_, "\x01");
  EXPECT_EQ(failureOf(*service_), failure);
  GetParam().set(*service_, "good");
  EXPECT_EQ(failureOf(*service_), "");
  EXPECT_EQ(modelText(*parseService(written(*service_))), modelText(*untouched));
  EXPECT_EQ(written(*service_), written(*untouched));
}

TEST_P(CharactersOfNoDocument, LeaveTheFileAlone) {
  const TempDirectory directory;
  const std::string file = directory.write("there.xml", "as before");
  const std::string none = directory.path() + "/none.xml";
  GetParam().set(*service_, "\x01");
  for (const std::string& name : {file, none}) {
    try {
      as::CAgentServicesFactory::Serialize(service_.get(), name.c_str());
      ADD_FAILURE() << name;
    } catch (const as::CASException& exception) {
      EXPECT_EQ(exception.getErrorText(), failure + name);
    }
  }
  EXPECT_EQ(contentOf(file), "as before");
  EXPECT_FALSE(std::filesystem::exists(none));
}

INSTANTIATE_TEST_SUITE_P(Setters, CharactersOfNoDocument, testing::ValuesIn(setters),
                         test::labelOf<Setter>);

// XML 1.1 has references to characters that XML 1.0, which is written, has no way to hold.
TEST(Version11, ControlCharactersAreReadButNotWritten) {
  const auto service =
      parseService("<?xml version='1.1'?>" + rootOf(test::samples::java, "", "name=\"a&#1;b\""));
  EXPECT_EQ(service->getName(),
            "a\x01"
            "b");
  EXPECT_THROW(written(*service), as::CASException);
  service->setName("ab");
  EXPECT_EQ(parseService(written(*service))->getName(), "ab");
}

}  // namespace
