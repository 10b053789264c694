# A layer is one library target: what it may include is exactly what it links.

add_library(mirolen_options INTERFACE)
target_compile_features(mirolen_options INTERFACE cxx_std_20)
if(MSVC)
  target_compile_options(mirolen_options INTERFACE /W4 /permissive- /utf-8 /fp:precise
                         $<$<BOOL:${MIROLEN_WARNINGS_AS_ERRORS}>:/WX>)
else()
  # Results are told to the last bit, whatever flags a host has set for all of its code, so no multiplication may melt
  # into an addition.
  target_compile_options(mirolen_options INTERFACE -fno-fast-math -ffp-contract=off -Wall -Wextra -Wpedantic -Wnon-virtual-dtor
                         -Woverloaded-virtual $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
                         # Position-independent code may inline its own functions, too: nobody replaces one of them.
                         $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>
                         $<$<BOOL:${MIROLEN_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(MIROLEN_SANITIZE)
  target_compile_options(mirolen_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                         -fno-omit-frame-pointer)
  target_link_options(mirolen_options INTERFACE -fsanitize=address,undefined)
endif()

function(mirolen_layer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;USES" ${ARGN})
  add_library(mirolen_${name} STATIC ${ARG_SOURCES} ${ARG_HEADERS})
  add_library(mirolen::${name} ALIAS mirolen_${name})
  set_target_properties(mirolen_${name} PROPERTIES EXPORT_NAME ${name} POSITION_INDEPENDENT_CODE ON
                        CXX_EXTENSIONS OFF)
  target_compile_features(mirolen_${name} PUBLIC cxx_std_20)
  target_include_directories(mirolen_${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
                             $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(mirolen_${name} PUBLIC ${ARG_USES} PRIVATE $<BUILD_INTERFACE:mirolen_options>)
  set_property(GLOBAL APPEND PROPERTY MIROLEN_LAYERS mirolen_${name})
  foreach(header IN LISTS ARG_HEADERS)
    install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mirolen/${name})
  endforeach()
endfunction()
