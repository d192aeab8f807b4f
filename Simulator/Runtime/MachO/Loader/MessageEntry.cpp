// The entries of messages: look up who answers, with every argument register kept, and go there.
#include "Runtime/Objc/ArgumentRegisters.hpp"

// Where to go on is in x0, and the route, if any, in x1.
__asm__(R"(
    .text

    .macro GO_ON
    mov x16, x0
    str x1, [sp, #88]
    TAKE_ARGUMENTS_BACK
    .endm

    .globl simMessageSend
    .hidden simMessageSend
    .type simMessageSend, %function
simMessageSend:
    .cfi_startproc
    cbz x0, 1f
    KEEP_ARGUMENTS
    bl simFindMethod
    GO_ON
    br x16
    // nil answers zero of every kind.
1:  mov x1, #0
    movi d0, #0
    movi d1, #0
    movi d2, #0
    movi d3, #0
    ret
    .cfi_endproc

    .globl simMessageSendSuper
    .hidden simMessageSendSuper
    .type simMessageSendSuper, %function
simMessageSendSuper:
    .cfi_startproc
    KEEP_ARGUMENTS
    bl simFindMethodAbove
    GO_ON
    ldr x0, [x0]
    br x16
    .cfi_endproc
)");
