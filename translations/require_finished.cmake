# Stops the build when an entry of the catalogue is untranslated, unfinished or no longer used: the compiler of
# the translations would only leave it out.
file(STRINGS "${catalogue}" unfinished REGEX "<translation( type=|></translation>|/>)" ENCODING UTF-8)
list(LENGTH unfinished count)
if(count GREATER 0)
  message(FATAL_ERROR "${catalogue}: ${count} entries are not finished")
endif()
