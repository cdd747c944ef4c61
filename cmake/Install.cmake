# What `cmake --install` leaves: the shared library, its headers, its data, and how others find it.
include(CMakePackageConfigHelpers)

install(TARGETS zvdisp EXPORT ZvDispTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zvdisp
  FILES_MATCHING PATTERN "Zv*.h"
  # of the platform, what the interface's headers speak of
  PATTERN "Export.h" PATTERN "Error.h" PATTERN "Numbers.h" PATTERN "Share.h" PATTERN "Text.h"
  PATTERN "Cursor.h" PATTERN "Files.h" PATTERN "MessageBox.h" PATTERN "Wgl.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/share/zvdisp DESTINATION ${CMAKE_INSTALL_DATADIR}
  PATTERN "*.py" EXCLUDE)
install(EXPORT ZvDispTargets NAMESPACE ZvDisp:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZvDisp)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZvDispConfig.cmake.in
  ${PROJECT_BINARY_DIR}/ZvDispConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZvDisp)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZvDispConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZvDispConfig.cmake ${PROJECT_BINARY_DIR}/ZvDispConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZvDisp)

configure_file(${CMAKE_CURRENT_LIST_DIR}/zvdisp.pc.in ${PROJECT_BINARY_DIR}/zvdisp.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zvdisp.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
