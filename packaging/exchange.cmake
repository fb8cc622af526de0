# The server of the recipe exchange as a service of the system.
function(exchange_installs)
  install(${ARGN} COMPONENT exchange EXCLUDE_FROM_ALL)
endfunction()

# exchange_variant(NAME FROM TO...): a file of the server with the places of a package.
function(exchange_variant name)
  set(source ${PROJECT_SOURCE_DIR}/exchange/${name})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
  file(READ ${source} text)
  set(changes ${ARGN})
  while(changes)
    list(POP_FRONT changes from to)
    string(FIND "${text}" "${from}" place)
    if(place EQUAL -1)
      message(FATAL_ERROR "${source} does not hold \"${from}\"")
    endif()
    string(REPLACE "${from}" "${to}" text "${text}")
  endwhile()
  file(CONFIGURE OUTPUT ${made}/exchange/${name} CONTENT "${text}" @ONLY)
endfunction()

set(state /var/lib/halvane-exchange)
exchange_variant(halvane-exchange.service /usr/local/bin/ /usr/bin/)
exchange_variant(halvane-exchange.conf
  "# database = exchange.db" "database = ${state}/exchange.db"
  "# secret_file = exchange.secret" "secret_file = ${state}/exchange.secret"
  "docs/exchange.md" "/usr/share/doc/halvane-exchange/exchange.md.gz")

exchange_installs(TARGETS halvane-exchange RUNTIME DESTINATION usr/bin)
exchange_installs(FILES ${made}/exchange/halvane-exchange.service DESTINATION usr/lib/systemd/system)
exchange_installs(FILES ${PROJECT_SOURCE_DIR}/exchange/halvane-exchange.sysusers DESTINATION usr/lib/sysusers.d
  RENAME halvane-exchange.conf)
exchange_installs(FILES ${made}/exchange/halvane-exchange.conf DESTINATION etc)
halvane_packed(exchange ${PROJECT_SOURCE_DIR}/exchange/halvane-exchange.8 usr/share/man/man8)
halvane_packed(exchange ${PROJECT_SOURCE_DIR}/docs/exchange.md usr/share/doc/halvane-exchange)
file(READ changelog text)
string(REPLACE "halvane (" "halvane-exchange (" text "${text}")
file(CONFIGURE OUTPUT ${made}/exchange/changelog CONTENT "${text}" @ONLY)
halvane_packed(exchange ${made}/exchange/changelog usr/share/doc/halvane-exchange)
halvane_copyright(exchange licences/Expat licences/BSD-3-clause licences/BSL-1.0)
exchange_installs(FILES ${made}/exchange/copyright DESTINATION usr/share/doc/halvane-exchange)

set(CPACK_DEBIAN_EXCHANGE_PACKAGE_NAME halvane-exchange)
set(CPACK_DEBIAN_EXCHANGE_PACKAGE_SECTION net)
set(CPACK_DEBIAN_EXCHANGE_PACKAGE_DEPENDS "systemd | systemd-standalone-sysusers")
set(CPACK_DEBIAN_EXCHANGE_PACKAGE_SUGGESTS "caddy | nginx, postgresql")
set(CPACK_DEBIAN_EXCHANGE_PACKAGE_CONTROL_EXTRA
  ${CMAKE_CURRENT_SOURCE_DIR}/exchange/conffiles ${CMAKE_CURRENT_SOURCE_DIR}/exchange/postinst
  ${CMAKE_CURRENT_SOURCE_DIR}/exchange/prerm ${CMAKE_CURRENT_SOURCE_DIR}/exchange/postrm)
set(CPACK_COMPONENT_EXCHANGE_DESCRIPTION "server with which users of Halvane exchange recipes
The server keeps the recipes that people send from Halvane, sends them by
mail, and shows a page for each of them. It keeps its data in one SQLite or
PostgreSQL database, and listens on the loopback only until it is told
otherwise: put a web server with TLS in front of it.")
