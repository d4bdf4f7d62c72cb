# The catalogues of the user interface, translations/quillon_LANGUAGE.ts, compiled into it.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)
function(quillon_translations target)
  file(GLOB catalogues CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/*.ts)
  qt_add_lrelease(${target} TS_FILES ${catalogues} QM_FILES_OUTPUT_VARIABLE compiled NO_GLOBAL_TARGET)
  qt_add_resources(${target} quillon_translations PREFIX /translations BASE ${CMAKE_CURRENT_BINARY_DIR}
    FILES ${compiled})
endfunction()
