// Tests of finding data items and entry points by their names: an index has to answer what walking
// through the lists answers, in programs where many things have one name.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "cobol/DataItemPath.h"
#include "cobol/ProgramImpl.h"
#include "service/OperationImpl.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace {

// How the lists are walked, one name after the other.
as::IDataItem* walkTo(const std::vector<std::string>& names, std::size_t at, as::IList* items) {
  for (int i = 0; i < items->getLength(); i++) {
    auto* const item = test::itemOf<as::IDataItem>(items, i);
    if (item->getName() != names[at]) continue;
    if (at + 1 == names.size()) return item;
    if (item->getDataType() != as::IDataItem::TYPE_GROUP) continue;
    auto* const group = as::interface_cast<as::IGroup>(item);
    if (as::IDataItem* const found = walkTo(names, at + 1, group->getChildren())) return found;
  }
  return nullptr;
}

as::IDataItem* walkTo(const std::string& path, as::IProgram& program) {
  const std::vector<std::string> names = splitDataItemPath(path);
  return names.empty() ? nullptr : walkTo(names, 0, program.getDataItems());
}

// The first member of that name; null when there is none.
template <class Member>
Member* walkTo(const std::string& name, as::IList* members) {
  for (int i = 0; i < members->getLength(); i++) {
    auto* const member = test::itemOf<Member>(members, i);
    if (member->getAttributeValue("name") == name) return member;
  }
  return nullptr;
}

// Makes programs by chance, of few names.
class Chance {
 public:
  explicit Chance(unsigned int seed) : engine_(seed) {}

  std::size_t below(std::size_t count) { return engine_() % count; }

  const char* name() {
    static const char* const names[] = {"A", "A", "A",   "B",    "B",       "B",
                                        "C", "a", "A.B", "B(1)", "\xc3\x84"};
    return names[below(std::size(names))];
  }

  std::string path(std::size_t most) {
    std::string path = name();
    for (std::size_t i = below(most); i > 0; i--) path += std::string(".") + name();
    if (below(8) == 0) path += below(2) == 0 ? "." : "(1,*)";
    return path;
  }

  std::string items(std::size_t depth) {
    static const char* const kinds[] = {"numeric", "alphanumeric", "pointer", "cobolObject",
                                        "index",   "national",     "group",   "group",
                                        "group",   "group",        "group",   "group"};
    std::string text;
    for (std::size_t i = 2 + below(5); i > 0; i--) {
      const std::string kind = kinds[below(std::size(kinds))];
      const bool isGroup = kind == "group";
      text += "<" + kind + " name='" + name() + "' odo='" + path(4) + "'>" +
              (isGroup && depth > 0 ? items(depth - 1) : "") + "</" + kind + ">";
    }
    return text;
  }

  std::string program() {
    std::string text = "<dataItems>" + items(2) + items(4) + items(2) + "</dataItems><entryPoints>";
    for (int i = 0; i < 6; i++) {
      text += std::string("<entryPoint name='") + name() + "'><parameter dataItem='" + name() +
              "'/></entryPoint>";
    }
    return test::dictionary(text + "</entryPoints>");
  }

 private:
  std::mt19937 engine_;
};

// Shows another's lists as a program of its own: it is walked through.
class Decorator : public as::IProgram {
 public:
  explicit Decorator(as::IProgram& shown) : shown_(shown) {}
  std::string getName() override { return shown_.getName(); }
  as::IList* getFileSection() override { return shown_.getFileSection(); }
  as::IList* getDataItems() override { return shown_.getDataItems(); }
  as::IList* getProperties() override { return shown_.getProperties(); }
  as::IList* getEntryPoints() override { return shown_.getEntryPoints(); }
  void* getUserData() override { return shown_.getUserData(); }
  void setUserData(void* data) override { shown_.setUserData(data); }
  std::string getAttributeValue(const char* name) override {
    return shown_.getAttributeValue(name);
  }

 private:
  as::IProgram& shown_;
};

// Calls visit(as::IDataItem&) for every item below.
template <class Visit>
void visitItems(as::IList* items, const Visit& visit) {
  for (int i = 0; i < items->getLength(); i++) {
    auto* const item = test::itemOf<as::IDataItem>(items, i);
    visit(*item);
    if (auto* const group = as::interface_cast<as::IGroup>(item)) {
      visitItems(group->getChildren(), visit);
    }
  }
}

class NameLookUp : public testing::TestWithParam<unsigned int> {
 protected:
  Chance chance_{GetParam()};
  std::unique_ptr<as::IProgram> program_ = test::parse(chance_.program());
};

INSTANTIATE_TEST_SUITE_P(Seeds, NameLookUp, testing::Range(1u, 41u));

TEST_P(NameLookUp, FindsTheItemsThatWalkingFinds) {
  Decorator decorator(*program_);
  std::set<as::IDataItem*> found;
  for (int i = 0; i < 500; i++) {
    const std::string path = chance_.path(6);
    as::IDataItem* const item = walkTo(path, *program_);
    found.insert(item);
    ASSERT_EQ(findDataItem(path, program_.get()), item) << path;
    ASSERT_EQ(findDataItem(path, &decorator), item) << path;
  }
  EXPECT_GT(found.size(), 5u);
}

TEST_P(NameLookUp, FindsWhatItemsDependOn) {
  visitItems(program_->getDataItems(), [&](as::IDataItem& item) {
    const std::string odo = item.getAttributeValue("odo");
    EXPECT_EQ(item.getODO(), walkTo(odo, *program_)) << odo;
  });
}

TEST_P(NameLookUp, FindsLinkageItemsAtTheTopLevelByTheirWholeNames) {
  for (int i = 0; i < program_->getEntryPoints()->getLength(); i++) {
    auto* const linkage = test::itemOf<as::ILinkageItem>(test::entryPointOf(*program_, i), 0);
    const std::string name = linkage->getAttributeValue("dataItem");
    EXPECT_EQ(linkage->getDataItem(), walkTo<as::IDataItem>(name, program_->getDataItems()))
        << name;
  }
}

TEST_P(NameLookUp, FindsTheEntryPointsThatWalkingFinds) {
  Decorator decorator(*program_);
  for (int i = 0; i < 20; i++) {
    const std::string name = chance_.name();
    auto* const found = walkTo<as::IEntryPoint>(name, program_->getEntryPoints());
    EXPECT_EQ(COperationImpl::GetEntryPoint(program_.get(), name), found) << name;
    EXPECT_EQ(COperationImpl::GetEntryPoint(&decorator, name), found) << name;
  }
}

// What is looked up is what the service says now, however it was changed in between.
TEST_P(NameLookUp, EditsAreSeenAtOnce) {
  as::IProgram& program = *program_;
  std::vector<as::IDataItem*> items;
  visitItems(program.getDataItems(), [&items](as::IDataItem& item) { items.push_back(&item); });
  const std::unique_ptr<as::IService> service(
      as::CAgentServicesFactory::NewJavaService(program_.release()));
  std::vector<as::IMapping*> mappings;
  for (int i = 0; i < 100; i++) {
    auto* const entryPoint = test::entryPointOf(program, static_cast<int>(chance_.below(6)));
    as::IOperation* const operation = service->addOperation("o", entryPoint);
    EXPECT_EQ(operation->getEntryPoint(),
              walkTo<as::IEntryPoint>(entryPoint->getName(), program.getEntryPoints()));
    as::IParameter* const parameter = operation->addParameter(as::IParameter::BY_IN, "p", 1);
    mappings.push_back(parameter->addMapping(items[chance_.below(items.size())]));
    for (int again = 0; again < 2; again++) {
      as::IMapping& mapping = *mappings[chance_.below(mappings.size())];
      EXPECT_EQ(mapping.getDataItem(), walkTo(mapping.getRawMapping(), program));
      mapping.setDataItem(items[chance_.below(items.size())]);
      EXPECT_EQ(mapping.getDataItem(), walkTo(mapping.getRawMapping(), program));
    }
  }
}

// A program that shows another's answers as its own while it is taken for the other.
class Disguised : public Decorator {
 public:
  Disguised(as::IProgram& taken, as::IProgram& shown) : Decorator(shown), taken_(taken) {}
  RTTItypeid RTTI_vinfo() const override { return taken_.RTTI_vinfo(); }
  void* RTTI_cast(RTTItypeid type) override { return taken_.RTTI_cast(type); }

 private:
  as::IProgram& taken_;
};

TEST(NameLookUp, AClientsProgramIsNeverTakenForWhatItShows) {
  const auto one = test::parse(test::dictionaryOf("<numeric name='A' length='1'/>"));
  const auto other = test::parse(test::dictionaryOf("<numeric name='B' length='2'/>"));
  Disguised disguised(*one, *other);
  EXPECT_EQ(CProgramImpl::own(&disguised), nullptr);
  EXPECT_EQ(findDataItem("A", &disguised), nullptr);
  EXPECT_NE(findDataItem("B", &disguised), nullptr);
}

}  // namespace
