#pragma once

// 128 bytes on the device, aligned like its largest member.
typedef union {
    char bytes[128];
    long long aligned;
} mbstate_t;
