// What is done with services, by the library.
#ifndef BENCH_SERVICES_H_
#define BENCH_SERVICES_H_

#include <memory>
#include <string>

#include "as/IProgram.h"
#include "as/IService.h"

namespace bench {

std::unique_ptr<as::IService> parseServiceText(const std::string& text);
// The service with its program.
std::unique_ptr<as::IService> loadServiceFile(const std::string& file);

// Looks up what every mapping of the service leads to; answers how many lead to an item.
int resolveMappings(as::IService& service);

}  // namespace bench

#endif  // BENCH_SERVICES_H_
