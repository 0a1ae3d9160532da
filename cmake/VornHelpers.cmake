# vorn_add_library(name SOURCES ...): one static library per folder.
function(vorn_add_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINK})
endfunction()

# Only ui/ may use Qt Widgets: the core must stay testable without a display.
# The check runs at configure time over the sources and fails the build.
function(vorn_check_widget_includes)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/store/* ${CMAKE_SOURCE_DIR}/app/* ${CMAKE_SOURCE_DIR}/cli/*
    ${CMAKE_SOURCE_DIR}/documents/* ${CMAKE_SOURCE_DIR}/invoicing/* ${CMAKE_SOURCE_DIR}/output/*
    ${CMAKE_SOURCE_DIR}/designs/* ${CMAKE_SOURCE_DIR}/services/* ${CMAKE_SOURCE_DIR}/einvoice/*)
  set(offenders "")
  foreach(f IN LISTS sources)
    if(f MATCHES "\\.(h|hpp|cpp|cc)$")
      file(STRINGS ${f} hits REGEX "#[ \t]*include[ \t]*[<\"](QtWidgets|QApplication|QWidget|QMainWindow|QDialog|QMessageBox|QFileDialog)")
      if(hits)
        list(APPEND offenders ${f})
      endif()
    endif()
  endforeach()
  if(offenders)
    message(FATAL_ERROR "Qt Widgets used outside ui/: ${offenders}")
  endif()
  foreach(target store documents app cli invoicing output einvoice designs services)
    if(TARGET ${target})
      get_target_property(libs ${target} LINK_LIBRARIES)
      if(libs MATCHES "Widgets")
        message(FATAL_ERROR "Target ${target} links Qt Widgets; only ui may.")
      endif()
    endif()
  endforeach()
endfunction()
