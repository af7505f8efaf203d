#pragma once

#include "insight/reader/Deeds.h"

namespace orlen::AskReader {

/// "Will you delete my passwords", "do you make backups of my films": asks about Orlen, whatever stands
/// behind the verb. "Can you free 5 GB" does not; and where the verb is not known, `ofOrlen` stays, for which
/// there is no rule. Pure; any thread.
void mergeOfOrlen(Phrases& phrases, const Lexicon& lexicon);

/// "Delete everything now!!! rm -rf /": an order that names nothing. Pure; any thread.
void mergeOrders(Phrases& phrases, bool isEnglish);

} // namespace orlen::AskReader
