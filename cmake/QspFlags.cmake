# SPDX-License-Identifier: BSD-3-Clause
# Compiler and linker settings of the two libraries.
#
# The same flags on every build machine: SSE4.2 as the one instruction-set
# level, never AVX and never -march=native. The libraries carry no C++
# runtime: no exceptions, RTTI or thread-safe statics, and loops are not
# turned into memcpy/memset calls, so that libqspsy8 needs nothing from libc
# but the stack-protector routine.
set(QSP_ISA_FLAGS -msse4.2 -mno-avx -mno-avx2 -mno-avx512f -mno-fma -mno-f16c)

# The sanitizer build checks behaviour, not speed: -O1 with line tables
# keeps its build time near the release build's.
if(QSP_SANITIZE)
  set(QSP_LIB_OPT_FLAGS -O1 -g1)
else()
  set(QSP_LIB_OPT_FLAGS -O3)
endif()

set(QSP_LIB_COMPILE_FLAGS
  ${QSP_ISA_FLAGS}
  ${QSP_LIB_OPT_FLAGS}
  -fno-exceptions -fno-rtti -fno-threadsafe-statics -fno-asynchronous-unwind-tables
  -fno-tree-loop-distribute-patterns -fno-math-errno -fno-trapping-math
  -fstack-protector-strong -fno-plt
  -fvisibility=hidden -fvisibility-inlines-hidden
  -Wall -Wextra)

# No start files and no default libraries: the libraries have no static
# constructors, and this keeps the weak runtime hooks of the start files
# (__cxa_finalize, __gmon_start__ and the like) out of their imports.
set(QSP_LIB_LINK_FLAGS -nostartfiles -nodefaultlibs -Wl,--no-undefined -Wl,-z,relro,-z,now -Wl,--as-needed)
set(QSP_LIB_LINK_LIBS c gcc)

if(QSP_SANITIZE)
  set(QSP_SANITIZE_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${QSP_SANITIZE_FLAGS} -O1 -g1)
  add_link_options(${QSP_SANITIZE_FLAGS})
  # The sanitizer runtimes need the ordinary start files and libraries.
  set(QSP_LIB_LINK_FLAGS -Wl,--no-undefined)
  set(QSP_LIB_LINK_LIBS "")
endif()

function(qsp_library_settings target version_script)
  target_compile_options(${target} PRIVATE ${QSP_LIB_COMPILE_FLAGS})
  if(QSP_SANITIZE)
    # Callers may pass element pointers at any byte address (x86 loads and
    # stores take them at no cost, and the tests pass odd addresses on
    # purpose): the library's own code is built without the alignment check.
    target_compile_options(${target} PRIVATE -fno-sanitize=alignment)
  endif()
  target_link_options(${target} PRIVATE ${QSP_LIB_LINK_FLAGS}
    "-Wl,--version-script=${version_script}")
  target_link_libraries(${target} PRIVATE ${QSP_LIB_LINK_LIBS})
  set_target_properties(${target} PROPERTIES
    VERSION 12 SOVERSION 12 SKIP_BUILD_RPATH ON
    # Both libraries sit in one folder of the build tree, as they do when
    # installed, so that libqspsy8's $ORIGIN run path holds there too.
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    LINK_DEPENDS "${version_script}")
endfunction()
