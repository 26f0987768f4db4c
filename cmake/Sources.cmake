# Which file belongs to which library is decided by its name and folder:
#   C*Dlg*, COption*, CDlg*, the page base OptionPage and everything in ui/ are dialogs (Win32 only);
#   platform/win32/ is the real platform; platform/fake/ the in-memory one;
#   everything else under src/ is the portable core.
function(option_collect_sources root)
  file(GLOB_RECURSE all CONFIGURE_DEPENDS
       "${root}/*.cpp" "${root}/*.h")
  set(core "")
  set(dialogs "")
  set(win32 "")
  set(fake "")
  foreach(f IN LISTS all)
    file(RELATIVE_PATH rel "${root}" "${f}")
    get_filename_component(name "${f}" NAME)
    if(rel MATCHES "^platform/win32/")
      list(APPEND win32 "${f}")
    elseif(rel MATCHES "^platform/fake/")
      list(APPEND fake "${f}")
    elseif(rel MATCHES "^ui/[A-Za-z0-9]*Model\\.(h|cpp)$")
      # the models behind our own controls are portable and tested natively
      list(APPEND core "${f}")
    elseif(rel MATCHES "^ui/" OR name MATCHES "^(C[A-Za-z0-9]*Dlg|COption|CDlg|OptionPage\\.)")
      list(APPEND dialogs "${f}")
    elseif(rel MATCHES "^app/main\\.cpp$" OR rel MATCHES "^resources/")
      # the entry point and resources go straight into the executable
    else()
      list(APPEND core "${f}")
    endif()
  endforeach()
  set(OPTION_CORE_SOURCES "${core}" PARENT_SCOPE)
  set(OPTION_DIALOG_SOURCES "${dialogs}" PARENT_SCOPE)
  set(OPTION_WIN32_SOURCES "${win32}" PARENT_SCOPE)
  set(OPTION_FAKE_SOURCES "${fake}" PARENT_SCOPE)
endfunction()
