// Tests of services for a program that is the client's own from end to end: lists, items and entry
// points as well.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "support/Flavours.h"

namespace {

// What an object of the client's own has to say as a model object.
template <class... Interfaces>
class Own : virtual public Interfaces... {
 public:
  void* getUserData() override { return nullptr; }
  void setUserData(void* /*data*/) override {}
  std::string getAttributeValue(const char* /*name*/) override { return {}; }
};

template <class Interface = as::IList>
class OwnList : public Own<Interface> {
 public:
  int getLength() override { return static_cast<int>(items_.size()); }
  as::IElement* getItem(int index) override {
    return items_.at(static_cast<std::size_t>(index)).get();
  }
  template <class Item, class... Arguments>
  Item& add(Arguments&&... arguments) {
    auto made = std::make_unique<Item>(std::forward<Arguments>(arguments)...);
    Item& item = *made;
    items_.push_back(std::move(made));
    return item;
  }

 private:
  std::vector<std::unique_ptr<as::IElement>> items_;
};

template <class Interface>
class OwnDataItem : public Own<Interface> {
 public:
  explicit OwnDataItem(std::string name, as::IGroup* parent = nullptr)
      : name_(std::move(name)), parent_(parent) {}
  int getDataType() override { return 0; }
  std::string getName() override { return name_; }
  std::string getPicture() override { return {}; }
  int getLength() override { return 0; }
  int getMinOccurs() override { return 0; }
  int getMaxOccurs() override { return 0; }
  int getOffset() override { return 0; }
  int getLine() override { return 0; }
  as::IDataItem* getODO() override { return nullptr; }
  bool hasODO() override { return false; }
  bool isLinkage() override { return false; }
  bool isSync() override { return false; }
  bool isRedefined() override { return false; }
  bool isRenamed() override { return false; }
  as::IList* getConditions() override { return &conditions_; }
  as::IGroup* getParent() override { return parent_; }

 private:
  std::string name_;
  as::IGroup* parent_;
  OwnList<> conditions_;
};

using OwnItem = OwnDataItem<as::IDataItem>;

class OwnGroup : public OwnDataItem<as::IGroup> {
 public:
  using OwnDataItem::OwnDataItem;
  as::IList* getChildren() override { return &children; }
  OwnList<> children;
};

class OwnEntryPoint : public OwnList<as::IEntryPoint> {
 public:
  explicit OwnEntryPoint(std::string name) : name_(std::move(name)) {}
  std::string getName() override { return name_; }
  int getCallConv() override { return 0; }

 private:
  std::string name_;
};

// Has the records A, A with B below, and the entry points MAIN, an item in between, and END.
class OwnProgram : public Own<as::IProgram> {
 public:
  OwnProgram() {
    dataItems_.add<OwnItem>("A");
    dataItems_.add<OwnList<>>();
    auto& group = dataItems_.add<OwnGroup>("A");
    group.children.add<OwnItem>("B", &group);
    entryPoints_.add<OwnEntryPoint>("MAIN");
    entryPoints_.add<OwnItem>("END");
    entryPoints_.add<OwnEntryPoint>("END");
  }
  std::string getName() override { return "OWN"; }
  as::IList* getFileSection() override { return &nothing_; }
  as::IList* getDataItems() override { return &dataItems_; }
  as::IList* getProperties() override { return &nothing_; }
  as::IList* getEntryPoints() override { return &entryPoints_; }

 private:
  OwnList<> nothing_;
  OwnList<> dataItems_;
  OwnList<> entryPoints_;
};

// A program of the client's own around one of the library's: the lists are the library's.
class ProgramAround : public Own<as::IProgram> {
 public:
  std::string getName() override { return "AROUND"; }
  as::IList* getFileSection() override { return inner_->getFileSection(); }
  as::IList* getDataItems() override { return inner_->getDataItems(); }
  as::IList* getProperties() override { return inner_->getProperties(); }
  as::IList* getEntryPoints() override { return inner_->getEntryPoints(); }

 private:
  std::unique_ptr<as::IProgram> inner_ = test::parse(test::payProgram());
};

class ClientProgram : public testing::TestWithParam<test::Flavour> {
 protected:
  ClientProgram()
      : program_(new OwnProgram),
        service_(GetParam().make(program_)),
        operation_(service_->addOperation("op", nullptr)),
        parameter_(operation_->addParameter(as::IParameter::BY_IN, "p", 0)) {}

  as::IDataItem* item(int index) {
    return as::interface_cast<as::IDataItem>(program_->getDataItems()->getItem(index));
  }
  as::IDataItem* itemInGroup() {
    return as::interface_cast<as::IDataItem>(
        as::interface_cast<as::IGroup>(item(2))->getChildren()->getItem(0));
  }

  as::IProgram* program_;  // The service's.
  std::unique_ptr<as::IService> service_;
  as::IOperation* operation_;
  as::IParameter* parameter_;
};

INSTANTIATE_TEST_SUITE_P(Flavours, ClientProgram, testing::ValuesIn(test::flavours::all),
                         [](const auto& value) { return std::string(value.param.label); });

TEST_P(ClientProgram, MappingsLeadToItsItems) {
  as::IMapping* const toItem = parameter_->addMapping(item(0));
  EXPECT_EQ(toItem->getRawMapping(), "A");
  EXPECT_EQ(toItem->getDataItem(), item(0));
  as::IMapping* const toNested = parameter_->addMapping(itemInGroup());
  EXPECT_EQ(toNested->getRawMapping(), "A.B");
  EXPECT_EQ(toNested->getDataItem(), itemInGroup());
}

TEST_P(ClientProgram, MappingsToNothingLeadNowhere) {
  OwnItem elsewhere("C");
  EXPECT_EQ(parameter_->addMapping(&elsewhere)->getDataItem(), nullptr);
}

TEST_P(ClientProgram, HiddenParametersLeadToItsItems) {
  as::IHiddenParameter* const hidden = operation_->addHiddenParameter(nullptr, nullptr);
  hidden->setDataItem(itemInGroup());
  EXPECT_EQ(hidden->getDataItem(), itemInGroup());
}

TEST_P(ClientProgram, AroundOneOfTheLibrarysIsServedToo) {
  auto* const program = new ProgramAround;
  const std::unique_ptr<as::IService> service(GetParam().make(program));
  EXPECT_EQ(service->getAttributeValue("programName"), "AROUND");
  EXPECT_EQ(service->getDDFilename(), "") << "which file it is of is not known";
  as::IOperation* const operation = service->addOperation(
      "op", as::interface_cast<as::IEntryPoint>(program->getEntryPoints()->getItem(0)));
  EXPECT_EQ(operation->getEntryPoint()->getName(), "PAY");
  auto* const group = as::interface_cast<as::IGroup>(program->getDataItems()->getItem(1));
  auto* const item = as::interface_cast<as::IDataItem>(group->getChildren()->getItem(1));
  as::IMapping* const mapping =
      operation->addParameter(as::IParameter::BY_IN, "p", 0)->addMapping(item);
  EXPECT_EQ(mapping->getRawMapping(), "REQ.TITLE");
  EXPECT_EQ(mapping->getDataItem(), item);
}

TEST_P(ClientProgram, OperationsFindItsEntryPoints) {
  OwnEntryPoint end("END");
  EXPECT_TRUE(operation_->setEntryPoint(&end));
  EXPECT_EQ(as::interface_cast<as::IElement>(operation_->getEntryPoint()),
            program_->getEntryPoints()->getItem(2));
  OwnEntryPoint other("OTHER");
  as::IOperation* const unbound = service_->addOperation("unbound", &other);
  EXPECT_EQ(unbound->getEntryPoint(), nullptr);
}

}  // namespace
