# The three system libraries, found the same way in the build and in the installed
# package config, so that a static VxXmlLib16 carries them to its users.
include(CMakeFindDependencyMacro)
find_package(EXPAT REQUIRED)
find_package(ZLIB REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(VX_PCRE2 REQUIRED IMPORTED_TARGET libpcre2-8)
if(NOT TARGET PCRE2::PCRE2)
  add_library(PCRE2::PCRE2 INTERFACE IMPORTED)
  target_link_libraries(PCRE2::PCRE2 INTERFACE PkgConfig::VX_PCRE2)
endif()
