# Installs the already built library into a scratch prefix, then builds and runs
# a project that finds it with find_package(vtyconf).
file(REMOVE_RECURSE ${PREFIX} ${WORK})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
  RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "install into ${PREFIX} failed")
endif()
execute_process(COMMAND ${CTEST} --build-and-test ${SOURCE} ${WORK}
    --build-generator ${GENERATOR}
    --build-options -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_BUILD_TYPE=Release
    --test-command consumer_package
  RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "the find_package consumer failed")
endif()
