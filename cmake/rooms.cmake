# A room is one static library. Rooms without widgets link QtCore alone, and so cannot see more.
#
#   vexley_room(core LINKS storage SOURCES session.cpp ...)
#   vexley_room(screens WIDGETS LINKS core SOURCES ...)

# Three targets carry the precompiled headers; every other target uses one of them again. The names
# of all fields are in them, because the table over them costs the compiler time in each source.
set(VEXLEY_CORE_HEADERS
    <QByteArray> <QDate> <QDateTime> <QHash> <QList> <QString> <QStringList> <QStringView> <QVariant>
    <array> <functional> <memory> <optional> <span> <string> <string_view> <utility> <variant>
    <vector>
    ${PROJECT_SOURCE_DIR}/core/schema/field_name.h)

function(vexley_precompiled name)
    cmake_parse_arguments(PRECOMPILED "" "" "LINKS;HEADERS" ${ARGN})
    add_library(${name} STATIC ${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${PRECOMPILED_LINKS})
    target_precompile_headers(${name} PRIVATE ${PRECOMPILED_HEADERS})
endfunction()

vexley_precompiled(precompiled_core LINKS Qt6::Core HEADERS ${VEXLEY_CORE_HEADERS})
vexley_precompiled(precompiled_widgets
    LINKS Qt6::Widgets HEADERS ${VEXLEY_CORE_HEADERS} <QtWidgets>)
vexley_precompiled(precompiled_tests
    LINKS Qt6::Core GTest::gtest HEADERS ${VEXLEY_CORE_HEADERS} <gtest/gtest.h>)

function(vexley_room name)
    cmake_parse_arguments(ROOM "WIDGETS" "" "LINKS;SOURCES" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ${ROOM_WIDGETS})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_LINKS} Qt6::Core)
    if(ROOM_WIDGETS)
        target_link_libraries(${name} PUBLIC Qt6::Widgets)
        target_precompile_headers(${name} REUSE_FROM precompiled_widgets)
    else()
        target_precompile_headers(${name} REUSE_FROM precompiled_core)
    endif()
endfunction()
