#include "FuzzPLS.h"

#include "FuzzSession.h"
#include "pls/PLSConfigTable.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSLayout.h"
#include "pls/ReadPLSFileData.h"
#include "session/Globals.h"

void ReadAndUsePLS(const QString& hdnFile, qint16 board) {
    FuzzDialogs dialogs;
    const bool read = ReadPLSFileData(hdnFile, dialogs);
    Require(!read || gPLS.Channels <= plsChannelPlaces, "no more channels than there are places");
    const PLSLayout& layout = PLSLayoutOf(board);
    Require(ChannelPlacesInUse(gPLS) >= 0 && ChannelPlacesInUse(gPLS) <= plsChannelPlaces,
            "channels in use lie within their places");
    Passes([&] { BuildPCFText(gPLS, layout); });
    Passes([&] { BuildCHLText(gPLS, layout); });
    BuildPLSConfigArray(board);
    ConfigChanged();
}

namespace {
constexpr qint16 standardBoard = 64;
constexpr qint16 r6500Board = 69;
} // namespace

FuzzPLSSets::FuzzPLSSets(const QString& extension)
    : file_(QStringLiteral("S.") + extension),
      standardSet_(MakeFuzzFile(QStringLiteral("S.hdn"), "@\r\n")),
      r6500Set_(MakeFuzzFile(QStringLiteral("L.hdn"), "E\r\n")) {
    file_.AlsoAs(QStringLiteral("L.") + extension);
}

void FuzzPLSSets::Run(FuzzInput input) const {
    file_.Put(input);
    ReadAndUsePLS(standardSet_, standardBoard);
    ReadAndUsePLS(r6500Set_, r6500Board);
}
