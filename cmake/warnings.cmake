# The warnings that every target of ours is built with; VERITANE_WERROR turns them into errors.
option(VERITANE_WERROR "Warnings are errors" ON)

add_library(veritane_warnings INTERFACE)
target_compile_options(veritane_warnings INTERFACE -Wno-restrict -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                       $<$<BOOL:${VERITANE_WERROR}>:-Werror>)
