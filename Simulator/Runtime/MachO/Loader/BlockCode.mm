#import <Foundation/Foundation.h>

#include "BlockCode.hpp"

#include "Checks.hpp"
#include "Hooking.hpp"
#include "Runtime/Objc/Blocks.hpp"

#include <stdexcept>
#include <vector>

namespace sim {

namespace {

constexpr int kHasCopyDispose = 1 << 25, kHasSignature = 1 << 30;

struct Block {
    void *kind;
    int flags, reserved;
    void *code;
    const void *const *descriptor; // a word in reserve, the size, two functions if it has them, its types
};

std::vector<std::pair<const uint8_t *, uint64_t>> &images() {
    static auto &list = *new std::vector<std::pair<const uint8_t *, uint64_t>>;
    return list;
}

bool isDevices(const void *code) {
    const auto *at = static_cast<const uint8_t *>(code);
    for (auto [begin, size] : images())
        if (at >= begin && at < begin + size) return true;
    return false;
}

void check(Block &block, const char *types) {
    IMP code =
        enteredFromHere(reinterpret_cast<IMP>(block.code), types, std::string("a block ") + types, true);
    block.code = reinterpret_cast<void *>(code);
}

void checkCopied(void *literal) {
    auto &block = *static_cast<Block *>(literal);
    if (!isDevices(block.code)) return;
    if (!(block.flags & kHasSignature)) refuseCall("a block that does not tell its types");
    try {
        check(block, static_cast<const char *>(block.descriptor[block.flags & kHasCopyDispose ? 4 : 2]));
    } catch (const std::exception &error) {
        refuseCall(error.what());
    }
}

} // namespace

void checkBlocks(const Image &image, const macho::Metadata &metadata) {
    images().emplace_back(image.begin(), image.size());
    onBlockCopied(checkCopied);
    for (const auto &block : metadata.blocks)
        check(*reinterpret_cast<Block *>(image.at(block.address)), block.types.c_str());
}

} // namespace sim
