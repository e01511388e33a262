// Whom a vendor answers to a request for quotation: kept with the defaults of the job.
#pragma once

#include <optional>

#include "core/session.h"

struct ReplyData
{
    QString to = {};
    QString by = {};
    QString phone = {};
    QString fax = {};
};
// Blank where the pair has no defaults; then nothing is written either. Both fail as the store
// does.
ReplyData replyData(const Session& session, int CONO, const QString& JOBNO);
void saveReplyData(const Session& session, int CONO, const QString& JOBNO, const ReplyData& data);

// frmVEXREQ06 around both; nothing when the user has cancelled.
std::optional<ReplyData> askReplyData(const Session& session, int CONO, const QString& JOBNO);
