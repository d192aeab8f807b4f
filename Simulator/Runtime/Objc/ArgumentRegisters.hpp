#pragma once

// For assembly that runs before a function without knowing what it takes. KEEP_ARGUMENTS makes a frame with
// every register in which arguments come, x8 for a result in memory, and x17, in which a thunk hands over
// what it stands for: x0 to x7 at 16, x8 at 80, x17 at 88, q0 to q7 at 96. TAKE_ARGUMENTS_BACK undoes it; x16
// is left alone.
#ifdef __aarch64__
__asm__(R"(
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
    stp x8, x17, [sp, #80]
    stp q0, q1, [sp, #96]
    stp q2, q3, [sp, #128]
    stp q4, q5, [sp, #160]
    stp q6, q7, [sp, #192]
    .endm

    .macro TAKE_ARGUMENTS_BACK
    ldp x0, x1, [sp, #16]
    ldp x2, x3, [sp, #32]
    ldp x4, x5, [sp, #48]
    ldp x6, x7, [sp, #64]
    ldp x8, x17, [sp, #80]
    ldp q0, q1, [sp, #96]
    ldp q2, q3, [sp, #128]
    ldp q4, q5, [sp, #160]
    ldp q6, q7, [sp, #192]
    ldp x29, x30, [sp], #224
    .cfi_def_cfa_offset 0
    .cfi_restore x29
    .cfi_restore x30
    .endm
)");
#endif
