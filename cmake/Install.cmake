# What `cmake --install` puts in place: the program with its tone module in a private folder,
# the default course, and the launcher with its desktop entry, icons, metainfo and manual.
#
#   bin/tessera                     launcher: the study folder, then the program in it
#   libexec/tessera/                the program and libtessera_tone.so beside it
#   share/tessera/course/           the built content file and its pictures
#   share/applications, metainfo, icons/hicolor, man/man1, doc/tessera
include(GNUInstallDirs)

set(TESSERA_PACKAGE_NAME tessera)
set(TESSERA_APP_ID academy.orlanda.Tessera)
set(TESSERA_PROGRAM_DIR ${CMAKE_INSTALL_LIBEXECDIR}/${TESSERA_PACKAGE_NAME})
set(TESSERA_COURSE_DIR ${CMAKE_INSTALL_DATADIR}/${TESSERA_PACKAGE_NAME}/course)

# The tone module reaches libc only through Qt, so the linker would drop it from the module's
# needs; a shipped shared object names libc itself.
target_link_options(tessera_tone PRIVATE "LINKER:--push-state,--no-as-needed,-lc,--pop-state")

install(TARGETS tessera tessera_tone
  RUNTIME DESTINATION ${TESSERA_PROGRAM_DIR}
  LIBRARY DESTINATION ${TESSERA_PROGRAM_DIR})

install(DIRECTORY ${CMAKE_BINARY_DIR}/study-course/
  DESTINATION ${TESSERA_COURSE_DIR}
  FILES_MATCHING PATTERN "Tessera" PATTERN "*.gph")

add_subdirectory(${PROJECT_SOURCE_DIR}/desktop ${CMAKE_BINARY_DIR}/desktop)
include(${CMAKE_CURRENT_LIST_DIR}/Package.cmake)
