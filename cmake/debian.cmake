# The Debian package of the tool: `cpack` in the build folder makes it from what `cmake --install` installs.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillhue-cli)
set(CPACK_PACKAGE_CONTACT "Quillhue maintainers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "edit and convert indexed-color palettes")
set(CPACK_PACKAGE_DESCRIPTION "Makes, shows, edits and converts palettes in the formats of paint programs and games,
and gives images the colors of a palette.")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
include(CPack)
