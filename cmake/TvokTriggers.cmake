# Run by cpack on the packages it has made. It gives the one with the libraries scripts that call ldconfig, beside the
# trigger for that, which is enough: without scripts a package can be installed into a root where nothing runs.
foreach(package ${CPACK_PACKAGE_FILES})
  set(folder ${package}.unpacked)
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
  execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${package} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${folder})
endforeach()
