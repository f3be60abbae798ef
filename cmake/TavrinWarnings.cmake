# Every target links tavrin_warnings, so the warning set lives in one place.
add_library(tavrin_warnings INTERFACE)
target_compile_options(tavrin_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align
  -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough)
