# Changes to the assembly that the old linker for armv7 needs. It crashes on the two sections of the Objective-C
# runtime below; they go under other names until the link is done (after_link.py).
s/__DATA,__objc_imageinfo,regular,no_dead_strip/__DATA,__later_imginfo,regular,no_dead_strip/
s/__DATA,__objc_catlist,regular,no_dead_strip/__DATA,__later_catlist,regular,no_dead_strip/

# It gives entries of the indirect symbol table no binding, which leaves null pointers. Plain pointers it binds:
#     .indirect_symbol X          becomes        .long X
#     .long 0
# and before a value other than 0, which stands for itself, the directive is left out.
s/__DATA,__nl_symbol_ptr,non_lazy_symbol_pointers/__DATA,__nl_symbol_ptr,regular/
/^[[:space:]]*\.indirect_symbol/ {
    N
    s/\.indirect_symbol[[:space:]]*\([^[:space:]]*\)[^\n]*\n[[:space:]]*\.long[[:space:]]*0[^\n]*$/.long\t\1/
    s/^[[:space:]]*\.indirect_symbol[^\n]*\n//
}
