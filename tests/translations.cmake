# Fails when the English catalogue lacks a text of the user interface, or holds one that is gone.
file(COPY "${source}/translations/quillon_en.ts" DESTINATION "${scratch}")
execute_process(WORKING_DIRECTORY "${source}" COMMAND_ERROR_IS_FATAL ANY
  COMMAND "${lupdate}" -I src -locations none -no-obsolete -silent src/ui src/app
    -ts "${scratch}/quillon_en.ts")
execute_process(RESULT_VARIABLE differs
  COMMAND "${CMAKE_COMMAND}" -E compare_files "${source}/translations/quillon_en.ts" "${scratch}/quillon_en.ts")
if(differs)
  message(FATAL_ERROR "run ./dev translations")
endif()
