# What a third-party host needs: the shared libraries, the embedded engine, their headers, the
# tables. It calls find_package(korvantes) and links korvantes::korvantes, or korvantes::outside if
# it loads the component with dlopen; korvantes::sqlite is the engine.
include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/korvantes)

foreach(part IN ITEMS headers runtime outside sqlite)
  set_target_properties(korvantes_${part} PROPERTIES EXPORT_NAME ${part})
  add_library(korvantes::${part} ALIAS korvantes_${part})
endforeach()
add_library(korvantes::korvantes ALIAS korvantes)
install(TARGETS korvantes korvantes_headers korvantes_runtime korvantes_outside korvantes_sqlite
        EXPORT korvantes)
install(EXPORT korvantes NAMESPACE korvantes:: FILE korvantesTargets.cmake DESTINATION ${package})

file(WRITE ${PROJECT_BINARY_DIR}/korvantesConfig.cmake
     "include(CMakeFindDependencyMacro)\nfind_dependency(SQLite3)\n"
     "include(\${CMAKE_CURRENT_LIST_DIR}/korvantesTargets.cmake)\n")
write_basic_package_version_file(korvantesConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/korvantesConfig.cmake
              ${PROJECT_BINARY_DIR}/korvantesConfigVersion.cmake DESTINATION ${package})

set(include ${CMAKE_INSTALL_INCLUDEDIR}/korvantes)
install(DIRECTORY runtime outside DESTINATION ${include} FILES_MATCHING PATTERN "*.h")
install(FILES component/KORVAN.h DESTINATION ${include}/component)
install(FILES library/factory.h DESTINATION ${include}/library)
install(FILES engines/sqlite/sqlite_connection.h DESTINATION ${include}/engines/sqlite)
install(FILES data/schema.sql DESTINATION ${CMAKE_INSTALL_DATADIR}/korvantes)
