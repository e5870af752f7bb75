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
