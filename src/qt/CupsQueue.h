// Hands a finished document to a queue of the printing system. The system's library is looked for
// when it is needed: the program runs without it.
#pragma once

#include <QByteArray>
#include <string>

namespace ladrix {

struct CupsJob {
    QByteArray queue;  // the printer's name
    QByteArray title;  // UTF-8
    QByteArray media;  // the paper's name among the printer's own; "": its usual one
};

// Returns when the system has taken the whole document. Throws a Failure with its reason where it
// has not; nothing is printed then.
void submitToCups(const CupsJob& job, const std::string& pdf);

}  // namespace ladrix
