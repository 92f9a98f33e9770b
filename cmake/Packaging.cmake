# Installing and packaging Tavrin for Linux desktops.
#
# The programs stand in their own folder, lib/tavrin, because the dove tail
# help reads its bitmaps from the program's folder; bin holds links to them.
# The desktop entry and the icon go where the desktop's menu looks for them.

include(GNUInstallDirs)
set(TAVRIN_PROGRAM_DIR lib/tavrin)

install(TARGETS tavrin tavrin-drive RUNTIME DESTINATION ${TAVRIN_PROGRAM_DIR})
file(GLOB TAVRIN_RUNTIME_PICTURES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/pictures/dove_tails/*.bmp)
install(FILES ${TAVRIN_RUNTIME_PICTURES} DESTINATION ${TAVRIN_PROGRAM_DIR})

set(links ${CMAKE_BINARY_DIR}/install-links)
file(MAKE_DIRECTORY ${links})
foreach(program tavrin tavrin-drive)
    file(CREATE_LINK ../${TAVRIN_PROGRAM_DIR}/${program} ${links}/${program} SYMBOLIC)
    install(FILES ${links}/${program} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

install(FILES data/tavrin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/tavrin.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tavrin)

# cpack -G DEB: tavrin_VERSION_ARCH.deb, its library dependencies found by
# dpkg-shlibdeps.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tavrin)
set(CPACK_PACKAGE_VENDOR Tavrin)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calculator for machinists, toolmakers and CNC programmers")
set(CPACK_PACKAGE_DESCRIPTION "Shop calculators (triangles, threads, speeds and feeds, tapers, dove tails),
a unit converter, an area and volume catalogue, and Quick Code generators of
G-code text for bolt circles, thread milling, peck drilling and threading.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Tavrin developers <tavrin@localhost>")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt draws its texts with whatever font is there; the windows are laid out with DejaVu.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_STRIP_FILES ON)
include(CPack)

# The package built and looked into: the entry valid, the icon, the pictures,
# and the packaged program answering --version. Skipped under the sanitizers,
# whose programs are not the ones shipped.
if(TAVRIN_TESTS AND NOT TAVRIN_SANITIZE)
    add_test(NAME package.deb
        COMMAND ${PROJECT_SOURCE_DIR}/scripts/check-package ${CMAKE_BINARY_DIR} ${PROJECT_VERSION})
    set_tests_properties(package.deb PROPERTIES LABELS package TIMEOUT 300)
endif()
