# Libraries, public headers, the package config and the pkg-config files; apps/CMakeLists.txt installs the programs.
# Each file belongs to a component, `runtime`, `development` or `tools`: cmake --install takes all of them, and each
# becomes a Debian package.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(tvok_config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tvok)
set(tvok_installed_targets tvok_core)
set(tvok_pc_names tvok-core)
if(TVOK_DESKTOP)
  list(APPEND tvok_installed_targets tvok_desktop)
  list(APPEND tvok_pc_names tvok-desktop)
endif()

install(TARGETS ${tvok_installed_targets} EXPORT tvokTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# All below is for building programs.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(EXPORT tvokTargets NAMESPACE tvok:: DESTINATION ${tvok_config_dir})

# Public headers mirror the tree. The folders below host/desktop hold the desktop's insides, save its headers
# for programs, which stand in host/desktop itself.
install(FILES tvok/tvok.h tvok/version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tvok)
foreach(folder records engine controls)
  install(DIRECTORY tvok/${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tvok FILES_MATCHING PATTERN "*.h"
    PATTERN "*_impl.h" EXCLUDE)
endforeach()
file(GLOB tvok_host_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tvok/host/*.h)
install(FILES ${tvok_host_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tvok/host)
if(TVOK_DESKTOP)
  file(GLOB tvok_desktop_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tvok/host/desktop/*.h)
  install(FILES ${tvok_desktop_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tvok/host/desktop)
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/tvokConfig.cmake.in ${PROJECT_BINARY_DIR}/tvokConfig.cmake
  INSTALL_DESTINATION ${tvok_config_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tvokConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tvokConfig.cmake ${PROJECT_BINARY_DIR}/tvokConfigVersion.cmake
  ${CMAKE_CURRENT_LIST_DIR}/TvokDependencies.cmake DESTINATION ${tvok_config_dir})

# A static library hands its dependencies on to the program; a shared one keeps them to itself. The files find
# the prefix from their own place, so an installed tree can be moved.
set(tvok_pc_requires "tvok-core = ${PROJECT_VERSION}")
if(TVOK_DESKTOP AND NOT BUILD_SHARED_LIBS)
  list(JOIN tvok_desktop_modules " " tvok_pc_modules)
  string(APPEND tvok_pc_requires " ${tvok_pc_modules}")
  if(TVOK_SDL)
    string(APPEND tvok_pc_requires " ${tvok_sdl_modules}")
  endif()
endif()
file(RELATIVE_PATH tvok_pc_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" tvok_pc_prefix "${tvok_pc_prefix}")
foreach(name ${tvok_pc_names})
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
if(NOT TVOK_PACKAGES) # which have papers of their own
  install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME Unspecified)
