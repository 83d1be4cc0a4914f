# SPDX-License-Identifier: MIT
# Run by CPack before it makes the Debian packages, on what was installed for each: adds
# what Debian's policy asks for, and takes out what there is for installations that move.
cmake_policy(VERSION 3.25)

# vy_compress(<file>)
function(vy_compress file)
    execute_process(COMMAND gzip --best --no-name --force ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} name)
    set(package ${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    set(top ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    set(documents ${top}/share/doc/${package})

    file(READ ${CPACK_RESOURCE_FILE_LICENSE} licence)
    file(WRITE ${documents}/copyright "${licence}")
    file(WRITE ${documents}/changelog.Debian "${CPACK_PACKAGE_NAME} \
(${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Packages of version ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
    vy_compress(${documents}/changelog.Debian)
    file(CHMOD_RECURSE ${documents} FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

    file(GLOB manuals ${top}/share/man/*/*.[0-9])
    foreach(manual IN LISTS manuals)
        vy_compress(${manual})
    endforeach()
    # Debian's libraries lie where the system looks for them.
    file(GLOB_RECURSE binaries ${top}/bin/* ${top}/lib/*.so*)
    foreach(binary IN LISTS binaries)
        if(NOT IS_SYMLINK ${binary})
            file(RPATH_REMOVE FILE ${binary})
        endif()
    endforeach()
endforeach()
