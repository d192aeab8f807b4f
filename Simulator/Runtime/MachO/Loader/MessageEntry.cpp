// The entries of messages: look up who answers, with every argument register kept, and go there.
__asm__(R"(
    .text

    .macro KEEP_ARGUMENTS
    stp x29, x30, [sp, #-224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    mov x29, sp
    stp x0, x1, [sp, #16]
    stp x2, x3, [sp, #32]
    stp x4, x5, [sp, #48]
    stp x6, x7, [sp, #64]
    str x8, [sp, #80]
    stp q0, q1, [sp, #96]
    stp q2, q3, [sp, #128]
    stp q4, q5, [sp, #160]
    stp q6, q7, [sp, #192]
    .endm

    // Where to go on is in x0, and the route, if any, in x1.
    .macro TAKE_ARGUMENTS_BACK
    mov x16, x0
    mov x17, x1
    ldp x0, x1, [sp, #16]
    ldp x2, x3, [sp, #32]
    ldp x4, x5, [sp, #48]
    ldp x6, x7, [sp, #64]
    ldr x8, [sp, #80]
    ldp q0, q1, [sp, #96]
    ldp q2, q3, [sp, #128]
    ldp q4, q5, [sp, #160]
    ldp q6, q7, [sp, #192]
    ldp x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    .endm

    .globl simMessageSend
    .hidden simMessageSend
    .type simMessageSend, %function
simMessageSend:
    .cfi_startproc
    cbz x0, 1f
    KEEP_ARGUMENTS
    bl simFindMethod
    TAKE_ARGUMENTS_BACK
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
    TAKE_ARGUMENTS_BACK
    ldr x0, [x0]
    br x16
    .cfi_endproc
)");
