#pragma once

namespace tavrin {

class FileList;

// Marks every proposal that another record of the list also proposes: the same new name in
// the same folder, or the same name ignoring case where that folder's file system folds
// case. Only one of them could be renamed; the marks let the window and the command line
// say so before anything happens. Clears the marks of every other record. Answers how many
// records were marked.
int markProposalConflicts(FileList& list);

}  // namespace tavrin
