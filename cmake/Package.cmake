# The Debian package. What the programs link comes from the programs; what they call and draw with is told here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessaro)
set(CPACK_PACKAGE_VENDOR "The Tessaro developers")
set(CPACK_PACKAGE_CONTACT "The Tessaro developers <maintainers@tessaro.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "batch watermarker for photographs")
set(CPACK_PACKAGE_DESCRIPTION "Tessaro puts texts and pictures on photographs, each in its place on photos of
any size, a whole list at a time. The originals are only read; what it writes
keeps the photo's metadata.
.
The package holds the window, tessaro, and a command that does the same work
without one, tessaro-batch.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Folders are everybody's to enter, whoever built the package.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ghostscript, poppler-utils, fonts-liberation, fonts-noto-core, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk, fonts-noto-color-emoji, qt6-translations-l10n, qt6-wayland, xdg-utils")

include(CPack)
