# One static library per layer of the headless core. A layer sees the headers
# of its own folder and of the layers below it, and nothing else: its include
# path is a folder of links to exactly those folders, so an include that
# points upward does not compile. Layers link only the layers below them.
set(TORVANE_LAYER_INCLUDES ${CMAKE_BINARY_DIR}/layers)

# torvane_layer(NAME SOURCES file... BELOW layer... [LIBS target...])
function(torvane_layer name)
  cmake_parse_arguments(L "" "" "SOURCES;BELOW;LIBS" ${ARGN})
  set(visible ${name})
  foreach(below ${L_BELOW})
    get_property(below_visible GLOBAL PROPERTY TORVANE_LAYER_${below}_VISIBLE)
    list(APPEND visible ${below} ${below_visible})
  endforeach()
  list(REMOVE_DUPLICATES visible)
  set_property(GLOBAL PROPERTY TORVANE_LAYER_${name}_VISIBLE ${visible})

  set(include_dir ${TORVANE_LAYER_INCLUDES}/${name})
  file(REMOVE_RECURSE ${include_dir})
  file(MAKE_DIRECTORY ${include_dir})
  foreach(dir ${visible})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${dir} ${include_dir}/${dir} SYMBOLIC)
  endforeach()

  add_library(layer_${name} STATIC ${L_SOURCES})
  target_include_directories(layer_${name} PRIVATE ${include_dir} ${CMAKE_BINARY_DIR}/generated)
  target_compile_options(layer_${name} PRIVATE ${TORVANE_WARNINGS})
  foreach(below ${L_BELOW})
    target_link_libraries(layer_${name} PUBLIC layer_${below})
  endforeach()
  target_link_libraries(layer_${name} PUBLIC ${L_LIBS})
endfunction()
