"""A picture of bars in groups, each group with a scale of its own."""

from html import escape

WIDTH = 860
MARGIN = 24
LABEL_WIDTH = 300
VALUE_WIDTH = 90
BAR = 16
STEP = 23
TITLE_STEP = 30
GAP = 18


class Chart:
    def __init__(self):
        self.y = MARGIN
        self.parts = []

    def group(self, title, bars):
        """`bars` are a label, milliseconds, and whether it is a peer."""
        self.y += 14
        self.text(MARGIN, self.y, title, "title")
        self.y += TITLE_STEP - 14
        greatest = max(value for _, value, _ in bars)
        room = WIDTH - 2 * MARGIN - LABEL_WIDTH - VALUE_WIDTH
        for label, value, is_peer in bars:
            middle = self.y + BAR / 2 + 4
            self.text(MARGIN + LABEL_WIDTH - 8, middle, label, "label")
            length = max(room * value / greatest, 1)
            self.parts.append(
                f'<rect x="{MARGIN + LABEL_WIDTH}" y="{self.y}" width="{length:.1f}" '
                f'height="{BAR}" rx="2" class="{"peer" if is_peer else "own"}"/>')
            digits = 2 if value < 10 else 0
            self.text(MARGIN + LABEL_WIDTH + length + 6, middle, f"{value:,.{digits}f} ms", "value")
            self.y += STEP
        self.y += GAP

    def text(self, x, y, text, style):
        self.parts.append(f'<text x="{x:.1f}" y="{y:.1f}" class="{style}">{escape(text)}</text>')

    def svg(self):
        """On a light card of its own, so that it is readable on light and on dark pages."""
        height = self.y - GAP + MARGIN
        return "\n".join([
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" '
            f'viewBox="0 0 {WIDTH} {height}">',
            "<style>",
            "text { font: 13px system-ui, 'DejaVu Sans', sans-serif; fill: #1f2328 }",
            ".title { font-weight: 600; font-size: 14px }",
            ".label { text-anchor: end; fill: #59636e }",
            ".own { fill: #2f6fdb }",
            ".peer { fill: #b4bcc6 }",
            "</style>",
            f'<rect x="0.5" y="0.5" width="{WIDTH - 1}" height="{height - 1}" rx="8" '
            'fill="#ffffff" stroke="#d0d7de"/>',
            *self.parts,
            "</svg>",
            "",
        ])
