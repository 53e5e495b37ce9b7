"""Small charts as SVG."""

from xml.sax.saxutils import escape

FONT = 'font-family="sans-serif" font-size="12"'
GOOD, BAD, INK, FAINT = "#2a7ab0", "#c0392b", "#333333", "#bbbbbb"


def _text(x, y, text, anchor="start", colour=INK):
    return f'<text x="{x:.0f}" y="{y:.0f}" {FONT} text-anchor="{anchor}" fill="{colour}">{escape(text)}</text>'


def _line(x1, y1, x2, y2, colour=FAINT, dash=""):
    return (f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}"'
            f'{f" stroke-dasharray={chr(34)}{dash}{chr(34)}" if dash else ""}/>')


def _document(width, height, parts):
    return "\n".join([f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
                      f'viewBox="0 0 {width} {height}">',
                      f'<rect width="{width}" height="{height}" fill="white"/>', *parts, "</svg>", ""])


def ratios(title, rows):
    """Draws a bar for each (label, ratio, limit or None), with a tick at the limit."""
    left, right, step, top = 400, 60, 20, 40
    width, height = 900, top + step * len(rows) + 20
    scale = (width - left - right) / max([1.3] + [ratio for _, ratio, _ in rows] + [limit or 0 for *_, limit in rows])
    parts = [_text(12, 22, title), _line(left + scale, top - 8, left + scale, height - 12, dash="4 3"),
             _text(left + scale, top - 12, "1.0", "middle")]
    for number, (label, ratio, limit) in enumerate(rows):
        y = top + step * number
        colour = FAINT if limit is None else GOOD if ratio <= limit else BAD
        parts += [_text(left - 8, y + 12, label, "end"),
                  f'<rect x="{left}" y="{y + 2}" width="{ratio * scale:.1f}" height="{step - 6}" fill="{colour}"/>',
                  _text(left + max(ratio, limit or 0) * scale + 6, y + 12, f"{ratio:.2f}")]
        if limit is not None:
            parts.append(_line(left + limit * scale, y, left + limit * scale, y + step - 2, INK))
    return _document(width, height, parts)


def lines(title, across, series):
    """One panel below the other for (label, unit, values over `across`), each with its own scale from 0."""
    left, right, panel, top = 90, 20, 110, 40
    width, height = 900, top + panel * len(series) + 30
    last = max(across[-1], 1e-9)
    parts = [_text(12, 22, title), _text(width - right, height - 10, f"{last / 60:.1f} minutes", "end")]
    for number, (label, unit, values) in enumerate(series):
        base = top + panel * (number + 1) - 10
        highest = max(max(values), 1)
        points = " ".join(f"{left + (width - left - right) * x / last:.1f},{base - (panel - 40) * y / highest:.1f}"
                          for x, y in zip(across, values))
        parts += [_text(left, base - panel + 24, f"{label} ({unit})" if unit else label), _line(left, base, width - right, base),
                  _text(left - 8, base, "0", "end"), _text(left - 8, base - panel + 46, f"{highest:.3g}", "end"),
                  f'<polyline points="{points}" fill="none" stroke="{GOOD}" stroke-width="1.5"/>']
    return _document(width, height, parts)
