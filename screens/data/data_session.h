// How a data screen behaves, without its widgets.
//
// It opens on one record in a mode: "A" adds one, "E" edits, "D" shows one and deletes it, "V" only
// shows it. Update checks all fields in their order, refuses with one box that counts the errors,
// or writes and is finished; in "D" it asks and deletes. When the screen closes, the record lock is
// given up and the list that opened it is told what to show (core/window_registry.h), whichever way
// out was taken.
//
// A record that another user deleted meanwhile: the user is told, the entry stays as it is typed
// and the next Update adds it anew.
#pragma once

#include "core/locators.h"
#include "screens/data/data_spec.h"

// On which record a data screen opens.
struct DataRecord
{
    QString mode = "A";
    // Along which the record is sought; without keys the table's first record is meant.
    QString index = {};
    std::vector<KeyField> keys = {};
    std::vector<KeyField> parent = {};  // of a new record
    qint16 winTag = 0;                  // of the list that opened it; 0 for none
    qint32 tag = 0;                     // by which it follows, and the lock's number
};

class DataSession
{
public:
    DataSession(DataSpec spec, Session session, DataRecord record);
    ~DataSession();
    DataSession(const DataSession&) = delete;
    DataSession& operator=(const DataSession&) = delete;

    // Load step. False when the record is not there (the user was told); fails as the store does.
    bool open();
    // Unload step; a second one does nothing.
    void close();

    const DataSpec& spec() const { return m_spec; }
    const Session& session() const { return m_session; }
    const DataRecord& record() const { return m_record; }
    const QString& mode() const { return m_mode; }
    bool isForTyping() const { return m_mode == "A" || m_mode == "E"; }
    QString caption() const;
    QString updateCaption() const;
    QString cancelCaption() const;

    Entry& entry() { return m_entry; }
    const Entry& entry() const { return m_entry; }
    storage::Recordset& rows() { return m_table.rows; }

    bool isLoaded() const { return m_isLoaded; }

    // True when the screen is finished and closes. With `stays` it goes on with the saved record.
    bool update(bool stays = false);
    // True when the screen may be left.
    bool mayLeave();
    void run(const DataCommand& command);

private:
    bool refuse();
    bool write(bool stays);
    void beginNext();
    bool remove();
    qint32 tagHere();

    DataSpec m_spec;
    Session m_session;
    DataRecord m_record;
    QString m_mode;
    OpenTable m_table;
    Entry m_entry;
    qint32 m_hotTag = 0;
    bool m_isOpen = false;
    bool m_isLoaded = false;
};
