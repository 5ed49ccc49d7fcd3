// Catches every attempt of the process to reach another over a network.
#ifndef TESTS_PEERS_DRIVER_NETWORK_H_
#define TESTS_PEERS_DRIVER_NETWORK_H_

namespace peers {

// How often it was attempted until now. The attempts fail: the program's own functions stand in
// front of the C library's, for all the libraries that it is linked with.
unsigned networkAttempts();

}  // namespace peers

#endif  // TESTS_PEERS_DRIVER_NETWORK_H_
