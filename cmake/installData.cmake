# Copies the files that users edit (configuration, orders, databases) beside the program; what is
# there already is never overwritten by an update. Set before: source, the project's folder.
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
foreach(dir _config _files _zp _e-mail)
    file(GLOB_RECURSE shipped RELATIVE "${source}" "${source}/${dir}/*")
    # The launchers there are the program's own, and installed as such.
    list(FILTER shipped EXCLUDE REGEX "\\.exe$")
    foreach(file ${shipped})
        if(NOT EXISTS "${root}/${file}")
            get_filename_component(folder "${file}" DIRECTORY)
            file(COPY "${source}/${file}" DESTINATION "${root}/${folder}")
            # The first update is compared with what was installed.
            file(COPY "${source}/${file}" DESTINATION "${root}/update/base/${folder}")
        endif()
    endforeach()
endforeach()
