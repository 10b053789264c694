# An installed copy is found with find_package(MirolenViewWM [COMPONENTS qt]) and linked as mirolen::view (the heart)
# or mirolen::qt (with its Qt 6 binding).
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/MirolenViewWM)
get_property(layers GLOBAL PROPERTY MIROLEN_LAYERS)
set(heart_layers ${layers})
list(REMOVE_ITEM heart_layers mirolen_qt)

add_library(mirolen_view INTERFACE)
add_library(mirolen::view ALIAS mirolen_view)
set_target_properties(mirolen_view PROPERTIES EXPORT_NAME view)
target_link_libraries(mirolen_view INTERFACE ${heart_layers})

install(TARGETS ${heart_layers} mirolen_view EXPORT MirolenViewWMTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT MirolenViewWMTargets NAMESPACE mirolen:: DESTINATION ${package_dir})
if(TARGET mirolen_qt)
  install(TARGETS mirolen_qt EXPORT MirolenViewWMQtTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT MirolenViewWMQtTargets NAMESPACE mirolen:: DESTINATION ${package_dir})
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/MirolenViewWMConfig.cmake.in MirolenViewWMConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(MirolenViewWMConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/MirolenViewWMConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/MirolenViewWMConfigVersion.cmake
        DESTINATION ${package_dir})

# The documents, and what they link to.
install(FILES LICENSE README.md CONTRIBUTING.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES bench/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/bench)
install(FILES translations/mirolen_de.ts DESTINATION ${CMAKE_INSTALL_DOCDIR}/translations)
install(DIRECTORY docs examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
