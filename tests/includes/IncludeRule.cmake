# Fails when a source includes a header that its library does not use, also
# where the compiler would find it: a feature's subject and its screens share a
# folder, so whoever uses the subject could reach for the screens.
#
# LIBRARIES names a file that sets, for each of ${libraries}, <name>_folder,
# <name>_sources and <name>_uses.
cmake_minimum_required(VERSION 3.25)
include(${LIBRARIES})

# A header belongs to the library that compiles the source of its name; one
# without a source belongs to its folder.
foreach(library ${libraries})
  foreach(source ${${library}_sources})
    string(REGEX REPLACE "\\.(cpp|ui)$" ".h" header ${source})
    set(owner_${header} ${library})
  endforeach()
  file(GLOB headers RELATIVE ${${library}_folder} ${${library}_folder}/*.h)
  foreach(header ${headers})
    set(folder_${header} ${${library}_folder})
  endforeach()
endforeach()

function(collect library)
  get_property(seen GLOBAL PROPERTY seen)
  if(NOT library IN_LIST seen AND library IN_LIST libraries)
    set_property(GLOBAL APPEND PROPERTY seen ${library})
    foreach(used ${${library}_uses})
      collect(${used})
    endforeach()
  endif()
endfunction()

set(checked 0)
foreach(library ${libraries})
  set_property(GLOBAL PROPERTY seen "")
  collect(${library})
  get_property(visible GLOBAL PROPERTY seen)
  set(folders)
  foreach(used ${visible})
    list(APPEND folders ${${used}_folder})
  endforeach()

  foreach(source ${${library}_sources})
    string(REGEX REPLACE "\\.(cpp|ui)$" "" name ${source})
    foreach(file ${name}.h ${name}.cpp)
      set(path ${${library}_folder}/${file})
      if(NOT EXISTS ${path})
        continue()
      endif()
      file(STRINGS ${path} includes REGEX "^ *# *include")
      foreach(include ${includes})
        if(include MATCHES "\".*/|<Qt[A-Za-z]*/")
          message(SEND_ERROR "${path}: includes by a path, which hides what it uses: ${include}")
        elseif(include MATCHES "\"(.*)\"")
          set(header ${CMAKE_MATCH_1})
          math(EXPR checked "${checked} + 1")
          if(DEFINED owner_${header} AND NOT owner_${header} IN_LIST visible)
            message(SEND_ERROR "${path}: ${header} belongs to ${owner_${header}}, "
              "which ${library} does not use")
          elseif(DEFINED folder_${header} AND NOT folder_${header} IN_LIST folders)
            message(SEND_ERROR "${path}: ${header} lies in ${folder_${header}}, "
              "of which ${library} uses nothing")
          endif()
        endif()
      endforeach()
    endforeach()
  endforeach()
endforeach()
if(checked LESS 200)
  message(SEND_ERROR "Only ${checked} includes found: is ${LIBRARIES} complete?")
endif()
