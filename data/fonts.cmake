# The typeface: the cuts that the program uses, from the package of the machine that builds it, and
# their licence. They stand beside the program wherever it runs, in the build tree through a link.
set(cuts Inter-Regular.otf Inter-Medium.otf Inter-SemiBold.otf Inter-Bold.otf)
find_path(HALVANE_INTER Inter-Regular.otf
  PATHS /usr/share/fonts /usr/local/share/fonts
  PATH_SUFFIXES opentype/inter inter truetype/inter rsms-inter-fonts
  DOC "The folder of Inter's static OpenType cuts (package fonts-inter)"
  REQUIRED)
set(fonts ${delivered}/fonts)
foreach(cut ${cuts})
  configure_file(${HALVANE_INTER}/${cut} ${fonts}/${cut} COPYONLY)
endforeach()
configure_file(fonts/OFL.txt ${fonts}/OFL.txt COPYONLY)

foreach(folder src tests tests/tour bench)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/${folder})
  file(CREATE_LINK ${fonts} ${PROJECT_BINARY_DIR}/${folder}/fonts SYMBOLIC)
endforeach()

install(DIRECTORY ${fonts} DESTINATION .)
