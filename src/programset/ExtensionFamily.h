#pragma once

#include <QString>

/// The family of extensions of a program set: which siblings the browser's tree lists, under what
/// label, and what a double-click on each does. Extensions are compared in upper case.

/// Label of a sibling by its extension as found on disk, without the point: "MAIN (.lmn)" for
/// "lmn", "Ufunc07 (.x07)" for "x07". Empty for an extension that the tree does not list.
QString SiblingLabel(const QString& extension);

/// What a double-click on a node of the tree does.
enum class NodeAction {
    None,
    OpenSource,        ///< ladder source or user function: the editor's request
    OpenConfiguration, ///< the system configuration tool's request
    ShowErrors,        ///< the compiler's error text
    EditTitle,         ///< asks for the program title
    ShowRevision,      ///< ident, revision and checksum
    ShowFileData,      ///< dates and size of the image
    ViewPLS,           ///< the offline viewer of limit switch files
};

/// Action of a node by its key: a sibling's extension, or the base name of the set for the root,
/// which counts by the same rules. Any letter case.
NodeAction ActionOfNode(const QString& key);
