# Hardening that costs nothing to speak of; scripts/hardening shows that a built program has it.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-protector-strong)
add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
string(TOUPPER "${CMAKE_BUILD_TYPE}" build_type)
set(build_flags "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${build_type}}")
# Fortified functions need an optimiser, and the sanitizers watch the plain ones.
if(build_flags MATCHES "-O[1-9s]" AND NOT build_flags MATCHES "-fsanitize")
  set(TROVALIS_FORTIFIED ON)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
endif()
