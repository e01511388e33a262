# A room is one static library. Rooms without widgets link QtCore alone, and so cannot see more.
#
#   vexley_room(core LINKS storage SOURCES session.cpp ...)
#   vexley_room(screens WIDGETS LINKS core SOURCES ...)
#
# One target carries each precompiled Qt header; the other rooms use it again.

set(VEXLEY_CORE_HEADERS
    <QByteArray> <QDate> <QDateTime> <QHash> <QList> <QString> <QStringList> <QStringView> <QVariant>
    <array> <functional> <memory> <optional> <span> <string> <string_view> <utility> <variant>
    <vector>)
set(VEXLEY_WIDGET_HEADERS <QtWidgets>)

function(vexley_room name)
    cmake_parse_arguments(ROOM "WIDGETS" "" "LINKS;SOURCES" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ${ROOM_WIDGETS})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ROOM_LINKS} Qt6::Core)
    target_precompile_headers(${name} PRIVATE ${VEXLEY_CORE_HEADERS})
    if(ROOM_WIDGETS)
        target_link_libraries(${name} PUBLIC Qt6::Widgets)
        target_precompile_headers(${name} PRIVATE ${VEXLEY_WIDGET_HEADERS})
    endif()
endfunction()
