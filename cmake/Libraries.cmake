# Ready-made libraries, all from the system; nothing is downloaded while configuring.
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)
find_package(nlohmann_json REQUIRED)
find_package(CLI11 REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Core DBus Gui Qml Quick QuickControls2 Svg)
find_package(pugixml REQUIRED)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-i18n icu-uc)
pkg_check_modules(HUNSPELL REQUIRED IMPORTED_TARGET hunspell)
pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(VIPS REQUIRED IMPORTED_TARGET vips)
# The packages of its single modules come without CMake files; those are in the package of all of it.
find_path(ORLEN_OPENCV_HEADERS opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
foreach(module core imgproc dnn)
    find_library(ORLEN_OPENCV_LIBRARY_${module} opencv_${module} REQUIRED)
    add_library(opencv_${module} UNKNOWN IMPORTED)
    set_target_properties(opencv_${module} PROPERTIES
        IMPORTED_LOCATION ${ORLEN_OPENCV_LIBRARY_${module}}
        INTERFACE_INCLUDE_DIRECTORIES ${ORLEN_OPENCV_HEADERS})
endforeach()

if(ORLEN_BUILD_TESTS)
    find_package(Qt6 REQUIRED COMPONENTS QuickTest Test)
    find_package(GTest REQUIRED)
endif()
if(ORLEN_BUILD_BENCH)
    find_package(benchmark REQUIRED)
endif()
