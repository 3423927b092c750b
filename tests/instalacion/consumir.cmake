# Installs the build tree into a folder of its own, builds the consumer against it and runs both it and
# the installed command.
#   cmake -D CONSTRUCCION=... -D COMPILADOR=... -D FUENTES=... -D TRABAJO=... -P consumir.cmake
file(REMOVE_RECURSE ${TRABAJO})

function(ejecutar)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE estado OUTPUT_VARIABLE salida ERROR_VARIABLE salida)
    if(NOT estado EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${salida}")
    endif()
endfunction()

ejecutar(${CMAKE_COMMAND} --install ${CONSTRUCCION} --prefix ${TRABAJO}/prefijo)
# Moved after the installation: nothing may depend on where it was.
file(RENAME ${TRABAJO}/prefijo ${TRABAJO}/trasladado)
ejecutar(${CMAKE_COMMAND} -S ${FUENTES} -B ${TRABAJO}/consumidor -G Ninja -DCMAKE_CXX_COMPILER=${COMPILADOR}
         -DCMAKE_PREFIX_PATH=${TRABAJO}/trasladado -DCMAKE_CXX_FLAGS=${OPCIONES})
ejecutar(${CMAKE_COMMAND} --build ${TRABAJO}/consumidor)
ejecutar(${TRABAJO}/consumidor/consumidor)
ejecutar(${TRABAJO}/trasladado/bin/efv energia --lugar Madrid)
