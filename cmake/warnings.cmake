# The warnings that every target of ours is built with; VERITANE_WERROR turns them into errors.
option(VERITANE_WERROR "Warnings are errors" ON)

add_library(veritane_warnings INTERFACE)
# GCC 12 sees overlapping copies (-Wrestrict) in plain sums of strings where there are none.
target_compile_options(veritane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                       $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> $<$<BOOL:${VERITANE_WERROR}>:-Werror>)
