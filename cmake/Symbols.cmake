# Embeds the icons that a table names into a target, as ":/symbols/NAME.svg". A file that the icon set lacks
# ends the configuration.
find_path(ORLEN_ICON_FOLDER stars.svg
    PATHS /usr/share /usr/local/share PATH_SUFFIXES bootstrap-icons/svg REQUIRED NO_DEFAULT_PATH)

function(orlen_embed_symbols target table)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
    file(STRINGS ${table} lines REGEX "^[^#]")
    foreach(line IN LISTS lines)
        string(REPLACE " " ";" words "${line}")
        list(GET words 0 name)
        list(GET words 1 icon)
        set(file ${ORLEN_ICON_FOLDER}/${icon}.svg)
        if(NOT EXISTS ${file})
            message(FATAL_ERROR "The icon of the symbol ${name} is missing: ${icon}.svg")
        endif()
        set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${name}.svg)
        list(APPEND files ${file})
    endforeach()
    # Two symbols may share an icon, but one file has one alias only.
    list(LENGTH files all)
    list(REMOVE_DUPLICATES files)
    list(LENGTH files different)
    if(NOT all EQUAL different)
        message(FATAL_ERROR "Two symbols name the same icon.")
    endif()
    qt_add_resources(${target} symbols PREFIX /symbols BASE ${ORLEN_ICON_FOLDER} FILES ${files})
endfunction()
