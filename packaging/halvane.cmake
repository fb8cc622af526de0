# The program, halvane-data, what is delivered for reading, and what a desktop and a shell need to know of them.

function(halvane_installs)
  install(${ARGN} COMPONENT halvane EXCLUDE_FROM_ALL)
endfunction()

halvane_installs(TARGETS halvane halvane-data RUNTIME DESTINATION usr/bin)
foreach(text foods.tsv reference-intakes.tsv tips.txt agreement.txt licences.txt food-sources.json
    records-format.schema.json)
  halvane_installs(FILES ${PROJECT_SOURCE_DIR}/data/${text} DESTINATION usr/share/halvane)
endforeach()
set(delivered ${PROJECT_BINARY_DIR}/delivered)
halvane_installs(FILES ${delivered}/delivery.id DESTINATION usr/share/halvane)
halvane_installs(DIRECTORY ${delivered}/help ${delivered}/fonts DESTINATION usr/share/halvane)
halvane_installs(FILES halvane/halvane.desktop DESTINATION usr/share/applications)
halvane_installs(FILES halvane/halvane.metainfo.xml DESTINATION usr/share/metainfo)
halvane_installs(FILES ${delivered}/halvane-data.bash DESTINATION usr/share/bash-completion/completions
  RENAME halvane-data)
halvane_installs(FILES ${delivered}/_halvane-data DESTINATION usr/share/zsh/vendor-completions)

set(logo ${PROJECT_SOURCE_DIR}/assets/logo.svg)
set(icons ${made}/icons)
add_custom_command(OUTPUT ${icons}/hicolor/512x512/apps/halvane.png
  COMMAND make_icons ${logo} ${icons}/hicolor DEPENDS make_icons ${logo} VERBATIM)
list(APPEND package_texts ${icons}/hicolor/512x512/apps/halvane.png)
halvane_installs(DIRECTORY ${icons}/hicolor DESTINATION usr/share/icons)
halvane_installs(FILES ${logo} DESTINATION usr/share/icons/hicolor/scalable/apps RENAME halvane.svg)

halvane_packed(halvane ${CMAKE_CURRENT_SOURCE_DIR}/halvane/halvane.1 usr/share/man/man1)
halvane_packed(halvane ${delivered}/halvane-data.1 usr/share/man/man1)
halvane_packed(halvane ${CMAKE_CURRENT_SOURCE_DIR}/changelog usr/share/doc/halvane)
halvane_packed(halvane ${PROJECT_SOURCE_DIR}/CHANGELOG.md usr/share/doc/halvane)
halvane_copyright(halvane licences/Expat licences/BSD-3-clause ${PROJECT_SOURCE_DIR}/data/fonts/OFL.txt)
halvane_installs(FILES ${made}/halvane/copyright DESTINATION usr/share/doc/halvane)

set(CPACK_DEBIAN_HALVANE_PACKAGE_NAME halvane)
set(CPACK_DEBIAN_HALVANE_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_HALVANE_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_COMPONENT_HALVANE_DESCRIPTION "diary of food and weight
Halvane works out a person's daily targets for 31 nutrients, finds foods in a
catalogue of 7,412, and shows the meals of a day against those targets. It
keeps recipes, body weight and foods of one's own, draws reports over any
period, and prints them.

Everything stays in two files in the person's own data folder. The command
halvane-data logs, exports, imports and checks the same records without a
window.")
