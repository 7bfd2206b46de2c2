// Which calls of the system a confined program may make.
#pragma once

namespace cutline {

// What computing, reading files and writing to open ones needs. Whatever is not known here is
// answered as by a system that lacks it, so that libraries take the older way.
bool allowReadingCalls() noexcept;

// Everything but sockets, signals to other processes and looking into them; lasts through exec.
bool refuseReachingOut() noexcept;

}  // namespace cutline
