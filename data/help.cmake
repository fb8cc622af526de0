# The help pages: each file of help/ is the text of a page, whose first line is its title. They are
# laid into one frame, with the links to all pages and the page's own marked. Pictures are those of
# the documentation.
set(help_source ${CMAKE_CURRENT_SOURCE_DIR}/help)
set(help ${delivered}/help)
set(pages index home day search facts profile reports my-foods recipes exchange preferences numbers
  your-data shortcuts)
file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/pictures/*.png)

function(read_page page)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${help_source}/${page}.html)
  file(READ ${help_source}/${page}.html text)
  string(REGEX MATCH "^<h1>([^<]*)</h1>" heading "${text}")
  set(text "${text}" PARENT_SCOPE)
  set(title "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

foreach(page ${pages})
  read_page(${page})
  set(title_of_${page} "${title}")
endforeach()
foreach(page ${pages})
  set(links "")
  foreach(target ${pages})
    set(mark "")
    if(target STREQUAL page)
      set(mark " aria-current=\"page\"")
    endif()
    string(APPEND links "<a href=\"${target}.html\"${mark}>${title_of_${target}}</a>\n")
  endforeach()
  read_page(${page})
  configure_file(${help_source}/page.html.in ${help}/${page}.html @ONLY)
endforeach()
configure_file(${help_source}/help.css ${help}/help.css COPYONLY)
foreach(picture ${pictures})
  configure_file(${picture} ${help} COPYONLY)
endforeach()

install(DIRECTORY ${help} DESTINATION .)
