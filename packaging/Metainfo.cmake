# The entry for software catalogues. They take home page and pictures by address alone, so both are told where a build
# knows an address: HOME is the home page, HELP the base address of the help pages, whose pictures lie below it.
function(orvane_write_metainfo file home help)
  set(ORVANE_METAINFO_ADDRESSES "")
  if(home)
    string(APPEND ORVANE_METAINFO_ADDRESSES "\n  <url type=\"homepage\">${home}</url>")
  endif()
  if(help MATCHES "^https?://")
    string(APPEND ORVANE_METAINFO_ADDRESSES "\n  <url type=\"help\">${help}index.htm</url>\n  <screenshots>"
      "\n    <screenshot type=\"default\">\n      <caption>The table of a garage door: states across, events down</caption>"
      "\n      <image>${help}pictures/table.png</image>\n    </screenshot>")
    foreach(picture "findings:What there is to be told of a design, with its marks in the table"
        "run:A machine that runs beside its table" "diagram:The picture of the machine beside its table"
        "compare:Two versions of a machine, change by change")
      string(REGEX MATCH "^([a-z]+):(.*)$" found "${picture}")
      string(APPEND ORVANE_METAINFO_ADDRESSES "\n    <screenshot>\n      <caption>${CMAKE_MATCH_2}</caption>"
        "\n      <image>${help}pictures/${CMAKE_MATCH_1}.png</image>\n    </screenshot>")
    endforeach()
    string(APPEND ORVANE_METAINFO_ADDRESSES "\n  </screenshots>")
  endif()
  configure_file(org.orvane.Orvane.metainfo.xml.in ${file} @ONLY)
endfunction()
