# What the project stands on, each as a target whose headers are system headers, so that our
# warnings-as-errors speak of our own code only.

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Xml Test)
find_package(OpenGL REQUIRED)
find_package(Threads REQUIRED)

find_path(COIN_INCLUDE_DIR Inventor/SoDB.h REQUIRED)
find_library(COIN_LIBRARY Coin REQUIRED)
add_library(Tavrik::Coin INTERFACE IMPORTED)
set_target_properties(Tavrik::Coin PROPERTIES
  INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${COIN_INCLUDE_DIR}
  INTERFACE_LINK_LIBRARIES ${COIN_LIBRARY})

find_path(SOQT_INCLUDE_DIR Inventor/Qt/SoQt.h REQUIRED)
find_library(SOQT_LIBRARY SoQt REQUIRED)
add_library(Tavrik::SoQt INTERFACE IMPORTED)
set_target_properties(Tavrik::SoQt PROPERTIES
  INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${SOQT_INCLUDE_DIR}
  INTERFACE_LINK_LIBRARIES "${SOQT_LIBRARY};Tavrik::Coin;Qt5::Widgets")
