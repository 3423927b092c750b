# Debian package of library, programs and data: `cmake --preset paquete`, build, `cpack` in the folder of the build.
# What it needs on the user's machine is read from the programs by dpkg-shlibdeps.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvelefv)
set(CPACK_PACKAGE_VENDOR QuorvelEFV)
set(CPACK_PACKAGE_CONTACT "QuorvelEFV <maintainers@quorvelefv.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Calculation of photovoltaic installations")
set(CPACK_PACKAGE_DESCRIPTION
    "Library of solar, electrical and economic calculations of photovoltaic installations,
with the command efv, the desktop program efv-estudio and catalogues of modules, inverters,
batteries, converters and loads. In Spanish.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# Texts of Qt itself in Spanish, letters to show and print, libcurl and libharu fetched at the first download and PDF: no
# program is linked with them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-dejavu-core, libcurl4 (>= 7.85), libhpdf-2.3.0")
include(CPack)
