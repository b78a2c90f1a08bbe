# Makes memory errors harder to exploit; checked by tests/binary/hardening. Sanitizers have better
# means of their own, and fortified calls need optimisation.
include(CheckPIESupported)
check_pie_supported()
add_link_options(LINKER:-z,relro LINKER:-z,now)
if(NOT QV_SANITIZE)
  add_compile_options(-fstack-protector-strong
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
endif()
