// The identities of the public interfaces.
#ifndef FRAME_INTERFACEIDENTITIES_H_
#define FRAME_INTERFACEIDENTITIES_H_

// Registers the record of every interface, each with its clean-up at process exit, in a fixed order
// that puts bases before what derives from them. Does so once, however often it is called.
void registerInterfaceIdentities();

#endif  // FRAME_INTERFACEIDENTITIES_H_
