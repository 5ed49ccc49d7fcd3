// A server on this machine that counts who connects to it, and sends everyone away.
#ifndef TESTS_HOSTILE_NETWORKTRAP_H_
#define TESTS_HOSTILE_NETWORKTRAP_H_

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <thread>

namespace hostile {

class NetworkTrap {
 public:
  NetworkTrap() : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    // What would be fetched by way of another server would not be seen.
    for (const char* const proxy : {"http_proxy", "https_proxy", "HTTPS_PROXY", "ftp_proxy",
                                    "FTP_PROXY", "all_proxy", "ALL_PROXY"}) {
      ::unsetenv(proxy);
    }
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address_);
    auto* const address = reinterpret_cast<sockaddr*>(&address_);
    if (socket_ < 0 || ::bind(socket_, address, size) != 0 || ::listen(socket_, SOMAXCONN) != 0 ||
        ::getsockname(socket_, address, &size) != 0) {
      throw std::runtime_error("no socket to listen on");
    }
    thread_ = std::thread([this] {
      for (;;) {
        const int visitor = ::accept(socket_, nullptr, nullptr);
        if (visitor < 0) return;
        visitors_++;
        ::close(visitor);
      }
    });
  }
  ~NetworkTrap() {
    ::shutdown(socket_, SHUT_RDWR);  // Ends accept().
    thread_.join();
    ::close(socket_);
  }
  NetworkTrap(const NetworkTrap&) = delete;
  NetworkTrap& operator=(const NetworkTrap&) = delete;

  std::string host() const { return "127.0.0.1:" + std::to_string(ntohs(address_.sin_port)); }
  // An address in it.
  std::string url(const std::string& file) const { return "http://" + host() + "/" + file; }

  // Connects, and waits until it is sent away.
  void visit() const {
    const int visitor = ::socket(AF_INET, SOCK_STREAM, 0);
    char byte = 0;
    const bool wasThere =
        ::connect(visitor, reinterpret_cast<const sockaddr*>(&address_), sizeof(address_)) == 0 &&
        ::read(visitor, &byte, 1) <= 0;
    ::close(visitor);
    if (!wasThere) throw std::runtime_error("no way to the server");
  }

  // How many connected until now.
  int visitors() {
    // They are counted in their order: once this one is, all before it are.
    visit();
    return visitors_ - ++ownVisits_;
  }

 private:
  int socket_;
  sockaddr_in address_ = {};
  std::atomic<int> visitors_{0};
  int ownVisits_ = 0;
  std::thread thread_;
};

}  // namespace hostile

#endif  // TESTS_HOSTILE_NETWORKTRAP_H_
