# One set of warnings for everything of ours; libraries' headers come in as system headers and stay out of it.
add_compile_options(-Wall -Wextra -Wpedantic -Werror)
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
