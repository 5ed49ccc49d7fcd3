# Reads the list of layers, LIST (src/layers.txt): sets AS_LAYERS to their folders, lowest first,
# and for each of them AS_LAYER_LIBRARY_<folder> and AS_LAYER_INCLUDES_<folder>.
macro(as_read_layers LIST)
  set(AS_LAYERS "")
  file(STRINGS "${LIST}" as_layer_rows REGEX "^[a-z]")
  foreach(as_layer_row IN LISTS as_layer_rows)
    separate_arguments(as_layer_row UNIX_COMMAND "${as_layer_row}")
    list(POP_FRONT as_layer_row as_layer as_layer_library)
    list(APPEND AS_LAYERS ${as_layer})
    set(AS_LAYER_LIBRARY_${as_layer} ${as_layer_library})
    set(AS_LAYER_INCLUDES_${as_layer} ${as_layer_row})
  endforeach()
endmacro()

# Sets RESULT to the sources of all layers that are linked into LIBRARY.
function(as_sources_of LIBRARY RESULT)
  set(sources "")
  foreach(layer IN LISTS AS_LAYERS)
    if(AS_LAYER_LIBRARY_${layer} STREQUAL LIBRARY)
      # Sorted by name: classes are registered in the order of this list.
      file(GLOB_RECURSE found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${layer}/*.cpp)
      list(APPEND sources ${found})
    endif()
  endforeach()
  set(${RESULT} ${sources} PARENT_SCOPE)
endfunction()
