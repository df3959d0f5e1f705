# The Debian package: `cpack --config build/CPackConfig.cmake` (scripts/package-check also
# installs it in a clean Debian root). Library dependencies come from dpkg-shlibdeps; the
# xcb platform plugin is loaded at run time, so it is named by hand.
set(TESSERA_PACKAGE_MAINTAINER "Tessera maintainers <tessera@orlanda.academy>"
  CACHE STRING "Maintainer field of the Debian package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${TESSERA_PACKAGE_NAME})
set(CPACK_PACKAGE_VENDOR "Orlanda Academy")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${TESSERA_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "real estate salesperson licensing exam preparation
Tessera drills candidates for a real estate salesperson licensing exam
through the nine topics of its course: review tests by topic with report
cards, timed screening exams, a glossary, discussion texts, a notebook,
a calculator and an alarm clock. Each user studies in a folder of their
own under the user's data folder.")

include(CPack)
