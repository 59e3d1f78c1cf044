# The desktop: everything that knows Qt. A library, so that the program and the window tests link the same code.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Network PrintSupport)
find_package(QScintilla REQUIRED)

# Where pages are found on the web. Empty: no update request, and the help pages the program brings along.
set(ORVANE_DOWNLOAD_URL "" CACHE STRING "Address of the page that names the latest version")
set(ORVANE_HOME_URL "" CACHE STRING "Address of the home page")
set(ORVANE_HELP_URL "" CACHE STRING "Base address of the help pages; NUMBER.htm is added")

# A program that was just built has its pages in the sources; one for another machine only beside itself.
set(help_folder "${PROJECT_SOURCE_DIR}/docs/help")
if(CMAKE_CROSSCOMPILING)
  set(help_folder "docs/help")
endif()

file(GLOB desktop_sources CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_LIST_DIR}/*/ui/*.h ${CMAKE_CURRENT_LIST_DIR}/*/ui/*.cpp
  ${CMAKE_CURRENT_LIST_DIR}/kit/*.h ${CMAKE_CURRENT_LIST_DIR}/kit/*.cpp
  ${CMAKE_CURRENT_LIST_DIR}/app/*.h ${CMAKE_CURRENT_LIST_DIR}/app/*.cpp)
list(REMOVE_ITEM desktop_sources ${CMAKE_CURRENT_LIST_DIR}/app/main.cpp)

add_library(orvane_desktop STATIC ${desktop_sources} ${CMAKE_CURRENT_LIST_DIR}/app/orvane.qrc)
set_target_properties(orvane_desktop PROPERTIES AUTOMOC ON AUTORCC ON)
# CMake 3.25 does not look again at the headers when the list of them has changed.
file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/orvane_desktop_autogen/timestamp)
target_compile_definitions(orvane_desktop
  PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
set_property(SOURCE ${CMAKE_CURRENT_LIST_DIR}/kit/WebAddresses.cpp PROPERTY COMPILE_DEFINITIONS
  ORVANE_DOWNLOAD_URL="${ORVANE_DOWNLOAD_URL}" ORVANE_HOME_URL="${ORVANE_HOME_URL}"
  ORVANE_HELP_URL="${ORVANE_HELP_URL}" ORVANE_HELP_FOLDER="${help_folder}")
target_link_libraries(orvane_desktop
  PUBLIC orvane_engine Qt6::Widgets Qt6::Network Qt6::PrintSupport QScintilla::QScintilla
  PRIVATE $<BUILD_INTERFACE:orvane_warnings>)

orvane_precompile_headers(orvane_desktop <algorithm> <optional> <string> <vector>
  <QApplication> <QHeaderView> <QLabel> <QLineEdit> <QMainWindow> <QPainter> <QPushButton> <QTableView> <QTimer> <QVBoxLayout>)

add_executable(orvane ${CMAKE_CURRENT_LIST_DIR}/app/main.cpp)
target_link_libraries(orvane PRIVATE orvane_desktop orvane_warnings)
set_target_properties(orvane PROPERTIES WIN32_EXECUTABLE ON)
orvane_windows_program(orvane "Orvane, state machine tables for Zorlan controllers")
