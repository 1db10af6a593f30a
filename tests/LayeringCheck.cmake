# Compiles one include of a header from every folder against every library's include root:
# a library sees its own folder and the folders below it, and an upward include fails.
#   cmake -DCOMPILER=... -DROOTS=<build>/include -DWORK=<dir> -P LayeringCheck.cmake
# One light header per folder; each line of EXPECTED names a library and the folders it sees.
set(headers
  base/StringMap.h model/ViaOutRec.h geometry/EquivalentRadius.h ndd/Units.h qfx/OutputScale.h
  ibis/PropertyNames.h app/CommandLine.h ui/UiTypes.h dialogs/forms/ControlIds.h)
set(EXPECTED
  "base: base"
  "model: base model"
  "geometry: base model geometry"
  "ndd: base model geometry ndd"
  "qfx: base model geometry ndd qfx"
  "ibis: base model geometry ndd ibis"
  "app: base model geometry ndd qfx ibis app"
  "ui: base model ui"
  "dialogs_forms: base model ui dialogs/forms")

file(MAKE_DIRECTORY ${WORK})
set(failures 0)
foreach(row IN LISTS EXPECTED)
  # A folder inside another (dialogs/forms) has the library dialogs_forms.
  string(REGEX MATCH "^[a-z_]+" library "${row}")
  string(REGEX REPLACE "^[a-z_]+: " "" seen "${row}")
  separate_arguments(seen)
  foreach(header IN LISTS headers)
    get_filename_component(folder ${header} DIRECTORY)
    string(REPLACE "/" "_" probe_name ${folder})
    set(probe ${WORK}/${library}_includes_${probe_name}.cpp)
    file(WRITE ${probe} "#include \"${header}\"\n")
    execute_process(
      COMMAND ${COMPILER} -std=c++17 -fsyntax-only -I${ROOTS}/${library} ${probe}
      RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    list(FIND seen ${folder} index)
    if(index GREATER -1 AND NOT status EQUAL 0)
      message("${library}/ cannot include ${header}:\n${err}")
      math(EXPR failures "${failures} + 1")
    elseif(index EQUAL -1 AND (status EQUAL 0 OR NOT err MATCHES "${header}: No such file"))
      message("${library}/ can include ${header}, which is above it")
      math(EXPR failures "${failures} + 1")
    endif()
  endforeach()
endforeach()
if(failures GREATER 0)
  message(FATAL_ERROR "${failures} include(s) break the layering")
endif()
