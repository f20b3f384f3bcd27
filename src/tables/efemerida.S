/* The ephemeris as read-only data of the program image. */
    .section .rodata
    .balign 8
    .global korvend_efemerida
    .type korvend_efemerida, @object
korvend_efemerida:
    .incbin "efemerida.bin"
    .size korvend_efemerida, . - korvend_efemerida
    .section .note.GNU-stack, "", @progbits
