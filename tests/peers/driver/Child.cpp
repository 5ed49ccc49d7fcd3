#include "Child.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

#include <cstdlib>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "Network.h"
#include "Peer.h"
#include "Requests.h"

#if defined(__SANITIZE_ADDRESS__)
#define AS_PEERS_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define AS_PEERS_SANITIZED 1
#endif
#endif

#ifdef AS_PEERS_SANITIZED
#include <sanitizer/lsan_interface.h>

// What a sanitizer finds ends the process by a signal, as any other crash.
extern "C" const char* __asan_default_options() {
  return "abort_on_error=1:allocator_may_return_null=0:quarantine_size_mb=32";
}
extern "C" const char* __ubsan_default_options() { return "abort_on_error=1:print_stacktrace=1"; }
#endif

namespace peers {

namespace {

#ifdef AS_PEERS_SANITIZED
constexpr bool sanitized = true;
bool leaks() { return __lsan_do_recoverable_leak_check() != 0; }
#else
constexpr bool sanitized = false;
bool leaks() { return false; }
#endif

// Looks after the request under way ten times a second.
namespace watch {

constexpr int ticksPerSecond = 10;

Record* record = nullptr;
long maxPages = 0;
int maxTicks = 0;
volatile sig_atomic_t ticks = 0;
double maxSeconds = 0;
double begun = 0;

void exhausted() { Record::put(record->exhausted, record->request.data()); }

// The process's resident pages; in a signal handler, where little may be called.
long pages() {
  char text[64] = {};
  const int file = ::open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
  if (file < 0) return 0;
  const ssize_t length = ::read(file, text, sizeof(text) - 1);
  ::close(file);
  if (length <= 0) return 0;
  const char* at = text;
  while (*at != '\0' && *at != ' ') at++;
  long result = 0;
  while (*at == ' ') at++;
  for (; *at >= '0' && *at <= '9'; at++) result = 10 * result + (*at - '0');
  return result;
}

// Of the processor's time, until now.
double seconds() {
  timespec time = {};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void tick(int /*signal*/) {
  if (pages() > maxPages) {
    exhausted();
    ::_exit(EXIT_FAILURE);
  }
  ticks = ticks + 1;
  if (ticks <= maxTicks && seconds() - begun <= maxSeconds) return;
  record->timedOut = true;
  ::_exit(EXIT_FAILURE);
}

// Memory is at its end: noted once, for whoever asked for it catches the exception.
void newFails() {
  exhausted();
  std::set_new_handler(nullptr);
}

void start(const Limits& limits, Record& record_) {
  record = &record_;
  maxPages = static_cast<long>(limits.memory) * 1024 * 1024 / ::sysconf(_SC_PAGESIZE);
  maxTicks = static_cast<int>(limits.patience) * ticksPerSecond;
  maxSeconds = limits.seconds;
  struct sigaction action = {};
  action.sa_handler = tick;
  action.sa_flags = SA_RESTART;
  ::sigaction(SIGALRM, &action, nullptr);
  const itimerval interval = {{0, 1000000 / ticksPerSecond}, {0, 1000000 / ticksPerSecond}};
  ::setitimer(ITIMER_REAL, &interval, nullptr);
  std::set_new_handler(newFails);
}

void beginRequest() {
  ticks = 0;
  begun = seconds();
}

}  // namespace watch

void limit(int resource, rlim_t value) {
  const rlimit both = {value, value};
  ::setrlimit(static_cast<__rlimit_resource>(resource), &both);
}

void setLimits(const Limits& limits) {
  constexpr rlim_t mebi = 1024 * 1024;
  limit(RLIMIT_CORE, 0);
  limit(RLIMIT_FSIZE, 64 * mebi);
  // A sanitizer's shadow is larger than any limit.
  if (!sanitized) limit(RLIMIT_AS, limits.memory * mebi);
}

// For the tests of this program: what a file asks for whose first bytes say so.
class Misbehaviour {
 public:
  explicit Misbehaviour(const std::string& text) {
    const std::string start = "<!--misbehave:";
    const std::size_t end = text.find("-->");
    if (text.compare(0, start.size(), start) == 0 && end != std::string::npos) {
      what_ = text.substr(start.size(), end - start.size());
    }
  }

  explicit operator bool() const { return !what_.empty(); }

  Place place() const { return what_ == "hang in a schema" ? shippedSchema : document; }

  void commit() const {
    if (what_ == "crash") std::abort();
    if (what_ == "exit") ::_exit(7);
    if (what_ == "connect") ::connect(0, nullptr, 0);
    if (what_ == "throw") throw std::runtime_error("one of no kind of ours");
    if (what_ == "hang" || what_ == "hang in a schema") {
      for (;;) ::pause();
    }
    if (what_ == "spin") {
      for (volatile int turns = 0;;) turns = turns + 1;
    }
    if (what_ == "grow") grow();
    if (what_ == "leak") leak();
  }

 private:
  static void grow() {
    constexpr std::size_t chunk = 1024 * 1024;
    std::vector<std::vector<char>> chunks;
    try {
      for (;;) chunks.emplace_back(chunk, 'x');
    } catch (const std::bad_alloc&) {
      throw as::CASException("memory is at its end");
    }
  }
  static void leak() {
    char* volatile lost = new char[12];
    if (lost != nullptr) lost = nullptr;
  }

  std::string what_;
};

// How the request ends; `record` notes an exception of no kind of ours.
void make(const Request& request, Record& record) {
  auto& counts = record.outcomes.at(request.place);
  const auto untold = [&](Outcome outcome) {
    counts.at(outcome)++;
    const std::string lines =
        record.untold.data() +
        ("    " + std::string(outcomeNames.at(outcome)) + ": " + request.name + "\n");
    if (lines.size() < record.untold.size()) Record::put(record.untold, lines);
  };
  try {
    const Outcome outcome = request.make();
    if (outcome == null) return untold(outcome);
    counts.at(outcome)++;
  } catch (const as::CASParseException&) {
    counts.at(parseException)++;
  } catch (const as::CASInvalidNamespaceException&) {
    counts.at(namespaceException)++;
  } catch (const as::CASException&) {
    untold(exception);
  } catch (...) {
    Record::put(record.foreignException, request.name);
  }
}

}  // namespace

void liveFor(const std::filesystem::path& file, std::size_t first, const Surroundings& surroundings,
             const Limits& limits, Record& record) {
  const Peer peer(file);
  const Requests requests(peer, surroundings.schemas, surroundings.work);
  std::vector<Request> all = requests.all();
  if (const Misbehaviour misbehaviour(peer.text()); limits.mayMisbehave && misbehaviour) {
    all = {{misbehaviour.place(), "misbehaviour", [misbehaviour] {
              misbehaviour.commit();
              return null;
            }}};
  }
  setLimits(limits);
  watch::start(limits, record);
  for (record.next = first; record.next < all.size();) {
    const Request& request = all[record.next++];
    Record::put(record.request, request.name);
    record.place = request.place;
    watch::beginRequest();
    const unsigned before = networkAttempts();
    make(request, record);
    if (networkAttempts() != before && record.connected[0] == '\0') {
      Record::put(record.connected, request.name);
    }
  }
  Record::put(record.request, "its end");
  watch::beginRequest();
  record.leaked = leaks();
  record.done = true;
}

}  // namespace peers
