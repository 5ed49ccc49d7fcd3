// A file that was made for other programs, with all that the requests need made of it.
#ifndef TESTS_PEERS_DRIVER_PEER_H_
#define TESTS_PEERS_DRIVER_PEER_H_

#include <filesystem>
#include <optional>
#include <string>

namespace peers {

class Peer {
 public:
  explicit Peer(const std::filesystem::path& path);

  const std::string& path() const { return path_; }
  const std::string& text() const { return text_; }

  // The path as it stands in an attribute's value that is a list.
  std::string reference() const;
  // The namespace that it is a schema of, if it is one of any.
  std::optional<std::string> targetNamespace() const;

  // The file's XML declaration, if any, and its root element: what can stand within another
  // document. Nothing when it is not written in bytes that say the same in the other.
  struct Parts {
    std::string declaration;
    std::string root;
  };
  std::optional<Parts> parts() const;

 private:
  std::string path_;
  std::string text_;
};

// `text` as it stands in an attribute's value.
std::string escaped(const std::string& text);

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_PEER_H_
