#import <Foundation/Foundation.h>

#include "Blocks.hpp"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace {

// Flags of a block literal and of a __block variable.
constexpr int kReferenceMask = 0xffff;
constexpr int kNeedsFree = 1 << 24;
constexpr int kHasCopyDispose = 1 << 25;
constexpr int kIsGlobal = 1 << 28;
// What a captured field is.
constexpr int kFieldIsObject = 3;
constexpr int kFieldIsBlock = 7;
constexpr int kFieldIsByref = 8;
constexpr int kFieldIsWeak = 16;
constexpr int kByrefCaller = 128;

struct Descriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void *destination, void *source);
    void (*dispose)(void *block);
};

struct Block {
    void *isa;
    int flags;
    int reserved;
    void (*invoke)(void *, ...);
    Descriptor *descriptor;
};

struct Byref {
    void *isa;
    Byref *forwarding;
    int flags;
    int size;
    void (*keep)(Byref *destination, Byref *source);
    void (*destroy)(Byref *);
};

constinit std::atomic<size_t> live = 0; // blocks on the heap
constinit void (*copied)(void *) = nullptr;

int addReference(int &flags) { return __atomic_add_fetch(&flags, 1, __ATOMIC_RELAXED); }
bool dropLastReference(int &flags) {
    return (__atomic_sub_fetch(&flags, 1, __ATOMIC_ACQ_REL) & kReferenceMask) == 0;
}

Byref *moveToHeap(Byref *source) {
    if (source->forwarding->flags & kNeedsFree) {
        addReference(source->forwarding->flags);
        return source->forwarding;
    }
    auto *heap = static_cast<Byref *>(malloc(static_cast<size_t>(source->size)));
    memcpy(heap, source, static_cast<size_t>(source->size));
    // One reference for the stack frame, one for the block that moves it.
    heap->flags = (source->flags & ~kReferenceMask) | kNeedsFree | 2;
    heap->forwarding = heap;
    source->forwarding = heap;
    if (source->flags & kHasCopyDispose) source->keep(heap, source);
    return heap;
}

void dropByref(Byref *variable) {
    variable = variable->forwarding;
    if (!(variable->flags & kNeedsFree) || !dropLastReference(variable->flags)) return;
    if (variable->flags & kHasCopyDispose) variable->destroy(variable);
    free(variable);
}

} // namespace

extern "C" {

#define EXPORTED __attribute__((visibility("default")))

// What block literals point at: other names of the class records below, so that the runtime keeps their
// dispatch tables up to date like those of any class.
extern void *_NSConcreteMallocBlock[];
__asm__(R"(
    .globl _NSConcreteStackBlock, _NSConcreteMallocBlock, _NSConcreteGlobalBlock
    .set _NSConcreteStackBlock, _OBJC_CLASS_SimStackBlock
    .set _NSConcreteMallocBlock, _OBJC_CLASS_SimMallocBlock
    .set _NSConcreteGlobalBlock, _OBJC_CLASS_SimGlobalBlock
)");

EXPORTED void *_Block_copy(const void *literal) {
    auto *block = static_cast<Block *>(const_cast<void *>(literal));
    if (!block || block->flags & kIsGlobal) return block;
    if (block->flags & kNeedsFree) {
        addReference(block->flags);
        return block;
    }
    auto *heap = static_cast<Block *>(malloc(block->descriptor->size));
    memcpy(heap, block, block->descriptor->size);
    heap->flags = (heap->flags & ~kReferenceMask) | kNeedsFree | 1;
    heap->isa = _NSConcreteMallocBlock;
    if (heap->flags & kHasCopyDispose) heap->descriptor->copy(heap, block);
    live.fetch_add(1, std::memory_order_relaxed);
    if (copied) copied(heap);
    return heap;
}

EXPORTED void _Block_release(const void *literal) {
    auto *block = static_cast<Block *>(const_cast<void *>(literal));
    if (!block || !(block->flags & kNeedsFree) || !dropLastReference(block->flags)) return;
    if (block->flags & kHasCopyDispose) block->descriptor->dispose(block);
    live.fetch_sub(1, std::memory_order_relaxed);
    free(block);
}

EXPORTED void _Block_object_assign(void *destination, const void *object, const int kind) {
    auto *field = static_cast<const void **>(destination);
    if (kind & kFieldIsByref) {
        *field = moveToHeap(static_cast<Byref *>(const_cast<void *>(object)));
    } else if (kind & (kByrefCaller | kFieldIsWeak)) {
        *field = object; // manual reference counting: a __block object is not retained
    } else if ((kind & kFieldIsBlock) == kFieldIsBlock) {
        *field = _Block_copy(object);
    } else if ((kind & kFieldIsObject) == kFieldIsObject) {
        *field = [static_cast<id>(const_cast<void *>(object)) retain];
    }
}

EXPORTED void _Block_object_dispose(const void *object, const int kind) {
    if (kind & kFieldIsByref) {
        dropByref(static_cast<Byref *>(const_cast<void *>(object)));
    } else if (kind & (kByrefCaller | kFieldIsWeak)) {
        return;
    } else if ((kind & kFieldIsBlock) == kFieldIsBlock) {
        _Block_release(object);
    } else if ((kind & kFieldIsObject) == kFieldIsObject) {
        [static_cast<id>(const_cast<void *>(object)) release];
    }
}

} // extern "C"

@interface SimBlock : NSObject
@end

@implementation SimBlock
- (id)retain {
    return static_cast<id>(_Block_copy(self));
}
- (oneway void)release {
    _Block_release(self);
}
- (id)copy {
    return static_cast<id>(_Block_copy(self));
}
- (id)copyWithZone:(NSZone *)zone {
    return static_cast<id>(_Block_copy(self));
}
- (NSUInteger)retainCount {
    return static_cast<NSUInteger>(reinterpret_cast<Block *>(self)->flags & kReferenceMask);
}
@end

@interface SimStackBlock : SimBlock
@end
@implementation SimStackBlock
@end
@interface SimMallocBlock : SimBlock
@end
@implementation SimMallocBlock
@end
@interface SimGlobalBlock : SimBlock
@end
@implementation SimGlobalBlock
@end

namespace sim {

void installBlocks() {
    // A class is complete only once it has got a message.
    for (Class kind : {[SimStackBlock class], [SimMallocBlock class], [SimGlobalBlock class]}) [kind self];
}

void onBlockCopied(void (*observer)(void *block)) { copied = observer; }

size_t liveBlocks() { return live.load(std::memory_order_relaxed); }

} // namespace sim
