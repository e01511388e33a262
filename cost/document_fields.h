// Fields that the heads of documents and the defaults of jobs have in common: the pair of company
// and job, the requisition type, and what is delivered how.
#pragma once

#include "core/job_numbers.h"
#include "screens/entry/entry.h"

// The pair that is typed. The job number stands in an entry without the blanks of its stored form.
int companyOf(const Entry& entry);
QString storedJobOf(const Entry& entry, const JobNoFormat& format);

// txtCONO with lblCONAME, and txtJOBNO with lblJOBNAME, each with its search.
EntryField typedCompanyField(const EntryCheck& check);
EntryField companyNameField();
EntryField typedJobField(const JobNoFormat& format, const EntryCheck& check);
EntryField jobNameField(const JobNoFormat& format);

// cboREQTYPE; reads the types that there are, and fails as the store does.
EntryField requisitionTypeField(const Session& session);
// txtSHIPTO, txtSHIPVIA, txtFOB, txtTERMS and txtWHODIDIT.
std::vector<EntryField> deliveryFields();
