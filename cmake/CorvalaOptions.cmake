# One target carries what every translation unit shares: language level, warnings, sanitizers, Qt's strict string rules.
add_library(corvala_options INTERFACE)
target_compile_features(corvala_options INTERFACE cxx_std_20)
target_compile_options(corvala_options INTERFACE
  -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference)
target_compile_definitions(corvala_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH)
if(CORVALA_WERROR)
  target_compile_options(corvala_options INTERFACE -Werror)
endif()
if(CORVALA_SANITIZE)
  target_compile_options(corvala_options INTERFACE -fsanitize=${CORVALA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(corvala_options INTERFACE -fsanitize=${CORVALA_SANITIZE})
endif()

# A shared library that leans on what it does not link is a wrong include that the compiler let pass.
string(APPEND CMAKE_SHARED_LINKER_FLAGS " -Wl,--no-undefined")
string(APPEND CMAKE_MODULE_LINKER_FLAGS " -Wl,--no-undefined")

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
