// The part of Foundation that the product uses, declared by hand: the package is built without an SDK.
#pragma once

#include <Foundation/NSCollections.h>
#include <Foundation/NSObjCRuntime.h>
#include <Foundation/NSObject.h>
#include <Foundation/NSServices.h>
#include <Foundation/NSString.h>
#include <Foundation/NSValue.h>
