// A diagnosis in words: the sentence of a cause, what a check has found, and what to do.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8; texts of other hosts and programs are shown as marks where they are no
// visible characters.

#pragma once

#include "conversation/Diagnosis.h"

#include <optional>
#include <string>
#include <vector>

namespace kx {

// One sentence that names the cause as the evidence shows it.
std::string sentenceOfCause(Cause cause, const DiagnosisEvidence& evidence);

// What a person can do about it. A firewall is named only where its service runs.
std::string adviceOfCause(Cause cause, const DiagnosisEvidence& evidence);

// The check in a few words, for example "Own broadcast".
std::string titleOfCheck(CheckKind kind);

// "OK", "Look", "Fails" or "Not known".
std::string wordOfState(CheckState state);

// What the check has seen, in one or two sentences.
std::string evidenceOfCheck(const Check& check, const DiagnosisEvidence& evidence);

// Absent for a check that does not fail.
std::optional<std::string> adviceOfCheck(const Check& check, const DiagnosisEvidence& evidence);

} // namespace kx
