#pragma once

#include "review/Finding.h"
#include "tool/Style.h"

#include <string>

/// The findings of one file, to be written in one of three ways.
struct FindingReport
{
    /// How many findings there are of each kind, and how many error marks the editor would show.
    struct Counts
    {
        int errors = 0;
        int warnings = 0;
        int marks = 0;
    };

    std::string file; ///< as reports call it
    Findings findings;
    bool warningsAreErrors = false;

    Severity severity(const Finding& finding) const
    {
        return warningsAreErrors ? Severity::Error : severityOf(finding.rule);
    }

    Counts counts() const;
};

/// "FILE:LINE: SPACE ADDRESS TAGNAME: error: what is wrong [rule]", one line for each finding.
std::string findingsAsText(const FindingReport& report, const Style& style);

/// One JSON object with the file, the counts and the findings.
std::string findingsAsJson(const FindingReport& report);

/// One workflow command for each finding; the pages of a review then show it at its line.
std::string findingsForGitHub(const FindingReport& report);

/// The counts in words.
std::string summary(const FindingReport& report);
