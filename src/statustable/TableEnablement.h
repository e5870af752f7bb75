#pragma once

/// What is known of the program set that the status table shows names and data of.
struct TableProgramState {
    bool accepted = false;     ///< a set of a board that can be viewed here is selected
    bool nicNames = false;     ///< its .nam file was found
    bool descriptions = false; ///< its .doc file was found
    bool dataFailed = false;   ///< its .ldt file is missing or could not be read
};

/// Which of the status table's controls take input; all others always do.
struct TableEnablement {
    bool viewNicNames = false;
    bool viewDescriptions = false;
    bool viewOffline = false;

    bool operator==(const TableEnablement&) const = default;
};

constexpr TableEnablement EnabledControls(const TableProgramState& program) {
    return {program.accepted && program.nicNames, program.accepted && program.descriptions,
            program.accepted && !program.dataFailed};
}
