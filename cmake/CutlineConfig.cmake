# What bundles are built against: the target Cutline::Ports, with the headers of platform/ports.
include(${CMAKE_CURRENT_LIST_DIR}/CutlinePorts.cmake)
