// Whether this build is watched by the address sanitizer: WATCHED_BY_SANITIZER is defined then.
#pragma once

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WATCHED_BY_SANITIZER
#endif
#endif
