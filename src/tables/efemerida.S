/* The ephemeris as read-only data of the program image; the two systems name that section and what is in it in their own
   ways. */
#ifdef _WIN32
    .section .rdata, "dr"
#else
    .section .rodata
    .type korvend_efemerida, @object
    .size korvend_efemerida, korvend_efemerida_vege - korvend_efemerida
#endif
    .balign 8
    .global korvend_efemerida
korvend_efemerida:
    .incbin "efemerida.bin"
korvend_efemerida_vege:
#ifndef _WIN32
    .section .note.GNU-stack, "", @progbits
#endif
