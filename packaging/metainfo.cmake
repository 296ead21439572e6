# The parts of the metainfo that are known elsewhere: the releases from CHANGELOG.md; links and pictures where there is
# a home page to fetch them from, which is expected to serve docs/images/ and help/ as they lie here. Without one there
# is no address that could be told.
#   cmake -DSOURCE=... -DTARGET=... [-DHOMEPAGE=https://...] -P metainfo.cmake
file(STRINGS ${SOURCE}/CHANGELOG.md headings REGEX "^## \\[[0-9.]+\\] - [0-9-]+$")
set(FERROWICK_RELEASES "")
foreach(heading IN LISTS headings)
    string(REGEX REPLACE "^## \\[([0-9.]+)\\] - ([0-9-]+)$" "    <release version=\"\\1\" date=\"\\2\" type=\"stable\"/>\n"
        release "${heading}")
    string(APPEND FERROWICK_RELEASES "${release}")
endforeach()

set(FERROWICK_LINKS "")
if(HOMEPAGE)
    string(REGEX REPLACE "/+$" "" home "${HOMEPAGE}")
    string(APPEND FERROWICK_LINKS "  <url type=\"homepage\">${home}</url>\n"
        "  <url type=\"help\">${home}/help/index.html</url>\n  <screenshots>\n")
    set(type " type=\"default\"")
    foreach(shown "main-window|Records in a list|Datensätze in einer Liste|Registros en una lista|Des fiches dans une liste"
            "library|A page that you lay out yourself|Eine selbst gestaltete Seite|Una página diseñada por usted|Une page que vous composez"
            "invoice|An invoice, typed on its page|Eine Rechnung, auf ihrer Seite geschrieben|Una factura, escrita en su página|Une facture, saisie sur sa page"
            "labels|Labels, many to a sheet|Etiketten, viele auf einem Bogen|Etiquetas, muchas por hoja|Des étiquettes, plusieurs par feuille"
            "dark|In a dark desktop|In einer dunklen Arbeitsumgebung|En un escritorio oscuro|Dans un bureau sombre")
        string(REPLACE "|" ";" shown "${shown}")
        list(GET shown 0 name)
        string(APPEND FERROWICK_LINKS "    <screenshot${type}>\n")
        set(place 0)
        foreach(language "" " xml:lang=\"de\"" " xml:lang=\"es\"" " xml:lang=\"fr\"")
            math(EXPR place "${place} + 1")
            list(GET shown ${place} caption)
            string(APPEND FERROWICK_LINKS "      <caption${language}>${caption}</caption>\n")
        endforeach()
        string(APPEND FERROWICK_LINKS "      <image>${home}/docs/images/${name}.png</image>\n    </screenshot>\n")
        set(type "")
    endforeach()
    string(APPEND FERROWICK_LINKS "  </screenshots>\n")
endif()
configure_file(${SOURCE}/packaging/org.ferrowick.ferrowick.metainfo.xml.in ${TARGET} @ONLY)
