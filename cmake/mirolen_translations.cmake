# Adds the catalogues in translations/ to a target as a resource. Without the lrelease of Qt (Debian: qt6-l10n-tools)
# the texts stay English.
function(mirolen_add_translations target)
  find_program(MIROLEN_LRELEASE NAMES lrelease lrelease-qt6 HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
  if(NOT MIROLEN_LRELEASE)
    message(STATUS "Qt's lrelease is not there: the texts of the library are in English only")
    return()
  endif()
  set(sources ${PROJECT_SOURCE_DIR}/translations)
  set(built ${CMAKE_CURRENT_BINARY_DIR}/translations)
  set(resource ${built}/qrc_mirolen_translations.cpp)
  configure_file(${sources}/mirolen_translations.qrc ${built}/mirolen_translations.qrc COPYONLY)
  add_custom_command(OUTPUT ${resource}
    COMMAND ${MIROLEN_LRELEASE} -silent ${sources}/mirolen_de.ts -qm ${built}/mirolen_de.qm
    COMMAND Qt6::rcc --name mirolen_translations --output ${resource} ${built}/mirolen_translations.qrc
    DEPENDS ${sources}/mirolen_de.ts ${built}/mirolen_translations.qrc
    VERBATIM)
  set_source_files_properties(${resource} PROPERTIES SKIP_AUTOGEN ON)
  target_sources(${target} PRIVATE ${resource})
  target_compile_definitions(${target} PRIVATE MIROLEN_CATALOGUES)
endfunction()
