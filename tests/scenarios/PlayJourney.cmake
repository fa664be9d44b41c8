# Plays SCRIPT with DESK in the empty FOLDER, then asks the database the questions of the .sql file beside the script: a line
# with a statement, under it "= " and the answer, columns divided by "|"; it may read files, with their names within FOLDER.
# Fails with what differs.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}/runtime")
file(CHMOD "${FOLDER}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{XDG_RUNTIME_DIR} "${FOLDER}/runtime")

set(database "${FOLDER}/practice.db")
execute_process(
  COMMAND "${DESK}" --db "sqlite:${database}" --config-dir "${FOLDER}/config" --demo
    --scenario "${SCRIPT}" --out "${FOLDER}/out"
  RESULT_VARIABLE code)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "the journey ended with ${code}")
endif()

string(REGEX REPLACE "\\.txt$" ".sql" questions "${SCRIPT}")
if(NOT EXISTS "${questions}")
  return()
endif()
file(STRINGS "${questions}" lines ENCODING UTF-8)
set(asked 0)
foreach(line IN LISTS lines)
  if(line MATCHES "^select ")
    set(question "${line}")
  elseif(line MATCHES "^= (.*)$")
    set(expected "${CMAKE_MATCH_1}")
    execute_process(COMMAND "${SQLITE3}" -readonly "${database}" "${question}" WORKING_DIRECTORY "${FOLDER}"
      OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT answer STREQUAL expected)
      message(FATAL_ERROR "${question}\n  gives ${answer}\n  not ${expected}")
    endif()
    math(EXPR asked "${asked} + 1")
  endif()
endforeach()
if(asked EQUAL 0)
  message(FATAL_ERROR "${questions} asks nothing")
endif()
