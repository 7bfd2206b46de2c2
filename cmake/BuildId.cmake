# Writes a source file whose function answers an identifier of this build, made of the headers that
# the program's parts share and of how they are compiled: parts with the same one fit together.
# Run as a script with TOP, FOLDERS, SALT, IN and OUT.
set(ALL "${SALT}")
foreach(FOLDER IN LISTS FOLDERS)
  file(GLOB HEADERS ${TOP}/${FOLDER}/*.h)
  foreach(HEADER IN LISTS HEADERS)
    file(SHA256 ${HEADER} HASH)
    string(APPEND ALL ${HASH})
  endforeach()
endforeach()
string(SHA256 BUILD_ID "${ALL}")
configure_file(${IN} ${OUT} @ONLY)
