# Settings shared by every target of the project.

set(QUILLHUE_SOURCE_ROOT ${CMAKE_CURRENT_SOURCE_DIR}/src)

add_library(quillhue_house INTERFACE)
target_include_directories(quillhue_house INTERFACE ${QUILLHUE_SOURCE_ROOT})
target_compile_definitions(quillhue_house INTERFACE QUILLHUE_VERSION="${PROJECT_VERSION}")
target_compile_options(quillhue_house INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wold-style-cast -Werror)
if(WIN32)
  target_compile_definitions(quillhue_house INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0A00)
endif()
if(QUILLHUE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${sanitizers})
  add_link_options(${sanitizers})
endif()
if(QUILLHUE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link
    -fsanitize-coverage-ignorelist=${CMAKE_CURRENT_SOURCE_DIR}/fuzz/untraced_functions.txt)
endif()

# The tool's header-only libraries. Debian installs them for all systems in one folder. The cross compiler may read
# these two, but nothing else in that folder.
set(headers ${CMAKE_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${headers})
foreach(library CLI nlohmann)
  if(NOT EXISTS /usr/include/${library})
    message(FATAL_ERROR "/usr/include/${library} is missing: install libcli11-dev and nlohmann-json3-dev")
  endif()
  file(CREATE_LINK /usr/include/${library} ${headers}/${library} SYMBOLIC)
endforeach()
add_library(quillhue_headers INTERFACE)
target_include_directories(quillhue_headers SYSTEM INTERFACE ${headers})

# Sets `result` to the files below the current folder that match the patterns. `kind` is GLOB or GLOB_RECURSE. Brackets in
# the name of the current folder are taken literally.
function(quillhue_glob kind result)
  string(REPLACE "[" "[[]" folder "${CMAKE_CURRENT_SOURCE_DIR}")
  list(TRANSFORM ARGN PREPEND "${folder}/")
  file(${kind} files CONFIGURE_DEPENDS ${ARGN})
  set(${result} ${files} PARENT_SCOPE)
endfunction()

# Compiles common headers once for all targets with the same options; `owner` is the first of them. This only saves time:
# each file includes what it uses, and scripts/check.sh compiles without precompiled headers.
set(QUILLHUE_STANDARD_HEADERS <algorithm> <array> <cstdint> <expected> <functional> <memory> <optional> <span> <string>
  <string_view> <utility> <variant> <vector>)
function(quillhue_precompile target owner)
  if(target STREQUAL owner)
    target_precompile_headers(${target} PRIVATE ${QUILLHUE_STANDARD_HEADERS} ${ARGN})
  else()
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()

# Builds a folder of src/ as a static library. The target of ui/logic is quillhue_ui_logic.
function(quillhue_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 library "" "" "EXCLUDE;LINK")
  string(REPLACE "/" "_" name ${folder})
  quillhue_glob(GLOB_RECURSE sources ${folder}/*.cpp)
  foreach(pattern IN LISTS library_EXCLUDE)
    list(FILTER sources EXCLUDE REGEX ${pattern})
  endforeach()
  add_library(quillhue_${name} STATIC ${sources})
  target_link_libraries(quillhue_${name} PUBLIC quillhue_house ${library_LINK})
endfunction()

# Imports functions of a system library that is loaded when the first of them is called, so that the start does not wait
# for it. None may take floating-point arguments, which are lost while the library is loaded.
function(quillhue_import_late target library)
  set(base ${CMAKE_CURRENT_BINARY_DIR}/late/${library})
  list(JOIN ARGN "\n" functions)
  file(CONFIGURE OUTPUT ${base}.def CONTENT "LIBRARY ${library}.dll\nEXPORTS\n${functions}\n")
  add_custom_command(OUTPUT ${base}.a
    COMMAND ${CMAKE_DLLTOOL} --deterministic-libraries --temp-prefix ${library}-late
      --input-def ${base}.def --output-delaylib ${base}.a
    DEPENDS ${base}.def WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/late VERBATIM)
  add_custom_target(${library}_late DEPENDS ${base}.a)
  add_dependencies(${target} ${library}_late)
  target_link_libraries(${target} PUBLIC ${base}.a)
endfunction()
