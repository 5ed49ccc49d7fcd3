#include "Network.h"

#include <netdb.h>
#include <sys/socket.h>

#include <atomic>
#include <cerrno>

#include "as/Export.h"

namespace {

std::atomic<unsigned> attempts = 0;

int refused() {
  attempts++;
  errno = ECONNREFUSED;
  return -1;
}

}  // namespace

unsigned peers::networkAttempts() { return attempts; }

// They take the places of functions whose declarations say what they throw: nothing, or nothing
// said.
extern "C" {

AS_EXPORT int connect(int /*socket*/, const sockaddr* /*address*/, socklen_t /*length*/) {
  return refused();
}

AS_EXPORT int getaddrinfo(const char* /*node*/, const char* /*service*/, const addrinfo* /*hints*/,
                          addrinfo** /*result*/) {
  refused();
  return EAI_FAIL;
}

AS_EXPORT hostent* gethostbyname(const char* /*name*/) {
  refused();
  h_errno = HOST_NOT_FOUND;
  return nullptr;
}

AS_EXPORT int gethostbyname_r(const char* /*name*/, hostent* /*entry*/, char* /*buffer*/,
                              std::size_t /*size*/, hostent** result, int* error) {
  refused();
  *result = nullptr;
  *error = HOST_NOT_FOUND;
  return ECONNREFUSED;
}

}  // extern "C"
