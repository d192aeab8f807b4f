// The open files with which the supervisor starts a simulated process.
#pragma once

namespace sim {

constexpr int kChannelDescriptor = 3;    // the conversation: see Channel.hpp
constexpr int kCrashDescriptor = 4;      // where the process writes a report when it crashes
constexpr int kPictureDescriptor = 5;    // pictures of the screen: see PictureMemory.hpp
constexpr int kTimeDescriptor = 6;       // its virtual time: see SharedTime.hpp
constexpr int kFirstFreeDescriptor = 10; // the supervisor's own lie above those

} // namespace sim
