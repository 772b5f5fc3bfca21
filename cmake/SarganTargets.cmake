# One library per folder of src/. Which folder may use which stands in src/arrows.txt, once, for this
# file and for the test that reads the #include lines.

add_library(sargan_options INTERFACE)
target_compile_options(sargan_options INTERFACE
  -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees uninitialized members in every std::variant that it inlines, and its plain -Wshadow takes
  # the enumerators of scoped enums for names of the scope around them.
  target_compile_options(sargan_options INTERFACE -Wshadow=local -Wno-maybe-uninitialized)
else()
  target_compile_options(sargan_options INTERFACE -Wshadow)
endif()
target_compile_definitions(sargan_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400
  SARGAN_VERSION="${PROJECT_VERSION}")
target_include_directories(sargan_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(SARGAN_SANITIZE OR SARGAN_FUZZ)
  target_compile_options(sargan_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(sargan_options INTERFACE -fsanitize=address,undefined)
endif()
if(SARGAN_FUZZ)
  target_compile_options(sargan_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The Qt headers that nearly every file reads, compiled once: one set for the core, one for widgets.
file(WRITE ${PROJECT_BINARY_DIR}/pch/core.cpp "")
add_library(sargan_pch_core STATIC ${PROJECT_BINARY_DIR}/pch/core.cpp)
target_link_libraries(sargan_pch_core PUBLIC sargan_options Qt6::Core Qt6::Gui)
target_precompile_headers(sargan_pch_core PRIVATE
  <QByteArray> <QDateTime> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject> <QJsonValue> <QList> <QMap>
  <QString> <QStringList> <QVariant> <QColor> <algorithm> <array> <functional> <memory> <optional>
  <span> <string> <variant> <vector>)
if(SARGAN_DESKTOP)
  file(WRITE ${PROJECT_BINARY_DIR}/pch/widgets.cpp "")
  add_library(sargan_pch_widgets STATIC ${PROJECT_BINARY_DIR}/pch/widgets.cpp)
  target_link_libraries(sargan_pch_widgets PUBLIC sargan_options Qt6::Core Qt6::Gui Qt6::Widgets)
  target_precompile_headers(sargan_pch_widgets PRIVATE
    <QtWidgets> <algorithm> <array> <functional> <memory> <optional> <span> <string> <variant> <vector>)
endif()

file(STRINGS ${PROJECT_SOURCE_DIR}/src/arrows.txt SARGAN_ARROWS REGEX "^[a-z]")

# sargan_library(logbook SOURCES … [UI] [LIBRARIES …])
# makes sargan_logbook (or sargan_logbook_ui), linked to the folders that arrows.txt names for it.
function(sargan_library folder)
  cmake_parse_arguments(ARG "UI" "" "SOURCES;LIBRARIES" ${ARGN})
  set(suffix "")
  set(pch sargan_pch_core)
  if(ARG_UI)
    set(suffix "_ui")
    set(pch sargan_pch_widgets)
  endif()
  set(target sargan_${folder}${suffix})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_link_libraries(${target} PUBLIC sargan_options Qt6::Core Qt6::Gui ${ARG_LIBRARIES})
  if(ARG_UI)
    target_link_libraries(${target} PUBLIC Qt6::Widgets)
    if(TARGET sargan_${folder})
      target_link_libraries(${target} PUBLIC sargan_${folder})
    endif()
  endif()
  target_precompile_headers(${target} REUSE_FROM ${pch})
  foreach(line IN LISTS SARGAN_ARROWS)
    string(REGEX MATCH "^([a-z]+):(.*)$" _ "${line}")
    if("${CMAKE_MATCH_1}" STREQUAL "${folder}")
      string(REGEX MATCHALL "[a-z]+" uses "${CMAKE_MATCH_2}")
      foreach(use IN LISTS uses)
        if(TARGET sargan_${use})
          target_link_libraries(${target} PUBLIC sargan_${use})
        endif()
        if(ARG_UI AND TARGET sargan_${use}_ui)
          target_link_libraries(${target} PUBLIC sargan_${use}_ui)
        endif()
      endforeach()
    endif()
  endforeach()
endfunction()

# sargan_test(archive SOURCES … LIBRARIES … [LABELS …]): one QtTest program, run offscreen by ctest.
function(sargan_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  set(target test_${name})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE sargan_options Qt6::Test ${ARG_LIBRARIES})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  if("${ARG_LIBRARIES}" MATCHES "_ui|Widgets")
    target_precompile_headers(${target} REUSE_FROM sargan_pch_widgets)
  else()
    target_precompile_headers(${target} REUSE_FROM sargan_pch_core)
  endif()
  target_compile_definitions(${target} PRIVATE
    SARGAN_SOURCE_DIR="${PROJECT_SOURCE_DIR}" SARGAN_BINARY_DIR="${PROJECT_BINARY_DIR}")
  # QtTest's own crash handler can go round for ever after an abort; the system's does not.
  add_test(NAME ${name} COMMAND ${target} -nocrashhandler)
  if(NOT ARG_LABELS)
    set(ARG_LABELS quick)
  endif()
  set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT 600
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QTEST_DISABLE_STACK_DUMP=1;LC_ALL=C.UTF-8;TZ=Europe/Paris;SARGAN_SETTINGS=${PROJECT_BINARY_DIR}/test-settings;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0")
endfunction()
