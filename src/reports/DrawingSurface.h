#pragma once

#include <QString>

/// Units of a surface's positions and sizes.
namespace ScaleMode {
constexpr int Twips = 1;  ///< 1/1440 inch
constexpr int Inches = 5; ///< of paper
} // namespace ScaleMode

/// How lines look.
namespace DrawStyle {
constexpr int Solid = 0;
constexpr int Dotted = 2;
} // namespace DrawStyle

/// Colours by their number in the palette of 16.
namespace PaletteColour {
constexpr int Black = 0;
constexpr int Grey = 8;
constexpr int LightBlue = 9;
} // namespace PaletteColour

struct SurfaceFont {
    QString name;
    double size = 7.8; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const SurfaceFont&) const = default;
};

/// Everything that lines are drawn with and texts are printed with.
struct SurfacePen {
    int colour = PaletteColour::Black;
    int width = 1; ///< device pixels at 96 dots per inch
    int style = DrawStyle::Solid;

    bool operator==(const SurfacePen&) const = default;
};

/// A sheet that graph and reports are drawn on: a window, a printed page or the recording of a
/// test. The origin is the left top corner; positions are in units of the scale mode. The base
/// keeps font, pen and position; what a device has to do is below and always in twips.
class DrawingSurface {
public:
    virtual ~DrawingSurface();

    /// While on, drawing becomes the ground that a Cls without it leaves alone.
    void SetAutoRedraw(bool on) { autoRedraw_ = on; }
    bool AutoRedraw() const { return autoRedraw_; }
    /// Clears what was drawn since AutoRedraw went off; with it on, everything. The position goes
    /// back to the origin.
    void Cls();
    /// Twips at first. A mode other than the two of ScaleMode counts as twips.
    void SetScaleMode(int mode);

    /// Font, pen and position hold for what is drawn from then on, also on the next sheet. Sizes of
    /// fonts are in points, colours numbers of PaletteColour, widths and styles as in SurfacePen.
    void SetFont(const SurfaceFont& font) { font_ = font; }
    const SurfaceFont& Font() const { return font_; }
    void SetFontName(const QString& name) { font_.name = name; }
    void SetFontSize(double points) { font_.size = points; }
    void SetFontBold(bool bold) { font_.bold = bold; }
    void SetFontUnderline(bool underline) { font_.underline = underline; }
    void SetForeColor(int colour) { pen_.colour = colour; }
    void SetDrawWidth(int width) { pen_.width = width; }
    void SetDrawStyle(int style) { pen_.style = style; }
    const SurfacePen& Pen() const { return pen_; }

    /// Size of the sheet.
    double ScaleWidth() const { return WidthInTwips() / twipsPerUnit_; }
    double ScaleHeight() const { return HeightInTwips() / twipsPerUnit_; }
    /// Size that a text has in the font of now.
    double TextWidth(const QString& text) const;
    double TextHeight(const QString& text) const;

    double CurrentX() const { return currentX_; }
    double CurrentY() const { return currentY_; }
    void SetCurrentX(double x) { currentX_ = x; }
    void SetCurrentY(double y) { currentY_ = y; }

    /// A line from (x1, y1) to (x2, y2), which becomes the position.
    void Line(double x1, double y1, double x2, double y2);
    /// The text with its left top corner at the position, in the colour of the pen; the position
    /// goes on to the start of the next line.
    void Print(const QString& text);
    /// The text without a line end: the position goes on to the end of the text.
    void PrintWithoutLineEnd(const QString& text);

protected:
    /// What a device has to do. Each may raise what the device raises.
    virtual double WidthInTwips() const = 0;
    virtual double HeightInTwips() const = 0;
    virtual double TextWidthInTwips(const QString& text) const = 0;
    virtual double TextHeightInTwips(const QString& text) const = 0;
    /// Takes away what was drawn since AutoRedraw went off, with `groundToo` all there is.
    virtual void ClearSheet(bool groundToo) = 0;
    virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
    virtual void DrawTextAt(double x, double y, const QString& text) = 0;

private:
    SurfaceFont font_;
    SurfacePen pen_;
    bool autoRedraw_ = false;
    double twipsPerUnit_ = 1.0;
    double currentX_ = 0.0;
    double currentY_ = 0.0;
};

/// A surface of many sheets. A new sheet comes into being with the first thing drawn on it, so that
/// a document that ends with NewPage has no empty last page.
class PagedSurface : public DrawingSurface {
public:
    /// Number of the sheet that is drawn on, from 1.
    int Page() const { return page_; }
    /// The next sheet; the position goes back to the origin.
    void NewPage();
    /// The document is complete and goes to the printer. Raises RunTimeError 57 or 68 when
    /// the printer failed, also before that, and 61, 75 or 76 for a file that cannot be written.
    virtual void EndDoc() = 0;

protected:
    virtual void BeginNextPage() = 0;

private:
    int page_ = 1;
};
