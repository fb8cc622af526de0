# Where the program finds the recipe exchange, and whom it tells people to write to.
set(HALVANE_SERVER "http://127.0.0.1:8613" CACHE STRING
  "Address of the recipe exchange that the program is built for")
set(HALVANE_SUPPORT "support@brindlewick.example" CACHE STRING
  "E-mail address that the program gives for help with the exchange")

foreach(setting HALVANE_SERVER HALVANE_SUPPORT)
  if("${${setting}}" STREQUAL "")
    get_property(hint CACHE ${setting} PROPERTY HELPSTRING)
    message(FATAL_ERROR "${setting} must not be empty: ${hint}")
  endif()
endforeach()
if(NOT HALVANE_SERVER MATCHES "^https?://[^ ]+$")
  message(FATAL_ERROR "HALVANE_SERVER must begin with http:// or https://, not \"${HALVANE_SERVER}\"")
endif()
message(STATUS "Recipe exchange: ${HALVANE_SERVER} (HALVANE_SERVER), support: ${HALVANE_SUPPORT} (HALVANE_SUPPORT)")
set(server_settings HALVANE_SERVER="${HALVANE_SERVER}" HALVANE_SUPPORT="${HALVANE_SUPPORT}")
