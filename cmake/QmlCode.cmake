# The QML files of a module, compiled to byte code, so that even the first launch has nothing to
# compile: quillon_qml_code(TARGET PREFIX ROOT FILES…), with files relative to the root. Byte code of
# another version of Qt than the one installed is passed over for the source.
function(quillon_qml_code target prefix root)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/qmlcode)
  set(paths)
  set(sources)
  foreach(file IN LISTS ARGN)
    set(source ${folder}/${file}.cpp)
    get_filename_component(parent ${source} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    add_custom_command(OUTPUT ${source} VERBATIM DEPENDS ${root}/${file}
      COMMAND Qt6::qmlcachegen --only-bytecode --resource-path ${prefix}/${file} -o ${source} ${root}/${file})
    list(APPEND paths ${prefix}/${file})
    list(APPEND sources ${source})
  endforeach()
  # qmlcachegen knows by the end of its name that this is the list of them all.
  set(loader ${folder}/qmlcache_loader.cpp)
  string(JOIN "\n" list ${paths})
  file(CONFIGURE OUTPUT ${folder}/files CONTENT "${list}\n" @ONLY)
  add_custom_command(OUTPUT ${loader} VERBATIM DEPENDS ${folder}/files
    COMMAND Qt6::qmlcachegen --resource-name qmlcache_${target} -o ${loader} @${folder}/files)

  add_library(${target}_qml_code OBJECT ${sources} ${loader})
  set_target_properties(${target}_qml_code PROPERTIES AUTOMOC OFF UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 24)
  target_link_libraries(${target}_qml_code PRIVATE Qt6::Qml)
  # Nobody names what the loader registers, so that from a library it would not be linked.
  target_link_libraries(${target} INTERFACE $<TARGET_OBJECTS:${target}_qml_code>)
endfunction()
