// A Java service with one operation.
#ifndef TESTS_SUPPORT_PARSEDOPERATION_H_
#define TESTS_SUPPORT_PARSEDOPERATION_H_

#include <memory>
#include <string>

#include "as/AgentServices.h"
#include "support/Documents.h"
#include "support/Model.h"
#include "support/Requests.h"

namespace test {

// The operation, with what else of its service is asked for.
class ParsedOperation {
 public:
  explicit ParsedOperation(const std::string& attributes, const std::string& content = "")
      : service_(parseService(
            payService(element("operations", element("operation", content, attributes))))) {}

  as::IOperation* operator->() const { return operationOf(*service_); }
  as::IOperation& operator*() const { return *operationOf(*service_); }
  as::IService& service() const { return *service_; }
  std::string text() const { return written(*service_); }

 private:
  std::unique_ptr<as::IService> service_;
};

}  // namespace test

#endif  // TESTS_SUPPORT_PARSEDOPERATION_H_
