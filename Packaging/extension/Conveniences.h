// Included before every unit of an extension that is built for the simulated devices: what the device's
// compiler settings give and the simulated body's would refuse.
#pragma once

#import <Foundation/Foundation.h>

// @YES and @NO.
#undef YES
#undef NO
#define YES __objc_yes
#define NO __objc_no
