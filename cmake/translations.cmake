# The catalogues of the window's languages, and beside them those of Qt for its own dialogs, so that the program has
# them wherever it is copied to.
find_package(Qt6 REQUIRED COMPONENTS Core)
get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmake} -query QT_HOST_BINS OUTPUT_VARIABLE qt_bins OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${qmake} -query QT_INSTALL_TRANSLATIONS OUTPUT_VARIABLE qt_translations OUTPUT_STRIP_TRAILING_WHITESPACE)
find_program(LRELEASE NAMES lrelease lrelease-qt6 HINTS ${qt_bins} REQUIRED)

file(GLOB catalogues CONFIGURE_DEPENDS translations/ferrowick_*.ts)
set(made "")
foreach(catalogue IN LISTS catalogues)
    get_filename_component(name ${catalogue} NAME_WE)
    string(REPLACE "ferrowick_" "" code ${name})
    set(to ${ferrowick_data}/translations)
    set(own ${qt_translations}/qtbase_${code}.qm)
    add_custom_command(OUTPUT ${to}/${name}.qm
        COMMAND ${CMAKE_COMMAND} -E make_directory ${to}
        COMMAND ${LRELEASE} -silent -nounfinished ${catalogue} -qm ${to}/${name}.qm
        DEPENDS ${catalogue} COMMENT "Making the catalogue ${name}" VERBATIM)
    list(APPEND made ${to}/${name}.qm)
    if(EXISTS ${own})
        add_custom_command(OUTPUT ${to}/qtbase_${code}.qm
            COMMAND ${CMAKE_COMMAND} -E copy ${own} ${to}/qtbase_${code}.qm DEPENDS ${own} VERBATIM)
        list(APPEND made ${to}/qtbase_${code}.qm)
    else()
        message(STATUS "Qt's own catalogue for ${code} is not installed; its dialogs stay English")
    endif()
endforeach()
add_custom_target(ferrowick_translations ALL DEPENDS ${made})
install(FILES ${made} DESTINATION ${CMAKE_INSTALL_DATADIR}/ferrowick/translations)
