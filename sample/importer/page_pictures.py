"""Page pictures, drawn by pdftoppm in several processes at once."""
import concurrent.futures
import os
import subprocess
import tempfile
import time

QUALITY = 92
# The longer side of a picture in pixels: the fewer pages, the finer. It is the same for pages of all sizes, so that
# neither tiny nor huge pages are out of proportion.
LONGER_SIDES = ((40, 1600), (150, 1200), (800, 800), (None, 640))
PAGES_AT_ONCE = 40  # drawn by one process, which has to read the file first


def longer_side_for(page_count):
    return next(side for most, side in LONGER_SIDES if most is None or page_count <= most)


def runs_of(cropped):
    """Splits the pages into (first, last, cropped) runs, so that every processor gets some. `cropped` tells of each
    page whether its crop box is what is shown."""
    length = max(1, min(PAGES_AT_ONCE, -(-len(cropped) // (os.cpu_count() or 1))))
    runs = []
    for number, crop in enumerate(cropped, 1):
        if runs and runs[-1][2] == crop and number - runs[-1][0] < length:
            runs[-1] = (runs[-1][0], number, crop)
        else:
            runs.append((number, number, crop))
    return runs


class Drawing:
    """Draws pages of one file into a folder, until a moment when all drawing ends."""

    def __init__(self, path, folder, page_count, deadline):
        self.path, self.folder, self.deadline = path, folder, deadline
        self.side = longer_side_for(page_count)

    def draw(self, run, kind=("-jpeg", "-jpegopt", f"quality={QUALITY}"), folder=None):
        left = self.deadline - time.monotonic()
        if left <= 0:
            return
        first, last, cropped = run
        command = ["pdftoppm", "-q", *kind, *(["-cropbox"] if cropped else []), "-scale-to", str(self.side),
                   "-f", str(first), "-l", str(last), self.path, os.path.join(folder or self.folder, "page")]
        try:
            subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                           timeout=left, check=False)
        except subprocess.TimeoutExpired:
            pass  # the pages not drawn by now stay without a picture

    def draw_alone(self, number, cropped):
        """For a page that was missed: a page that cannot be drawn takes those after it in its run along."""
        own = tempfile.mkdtemp(dir=self.folder)
        self.draw((number, number, cropped), folder=own)
        if not drawn_in(own):
            self.draw((number, number, cropped), kind=("-png",), folder=own)  # JPEG refuses some sizes


def draw(path, folder, cropped, seconds):
    """Draws every page. Gives a picture file per page, or None."""
    drawing = Drawing(path, folder, len(cropped), time.monotonic() + seconds)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as workers:
        list(workers.map(drawing.draw, runs_of(cropped)))
        numbers = range(1, len(cropped) + 1)
        missed = sorted(set(numbers) - set(drawn_in(folder)))
        list(workers.map(drawing.draw_alone, missed, (cropped[number - 1] for number in missed)))
    drawn = drawn_in(folder)
    return [drawn.get(number) for number in numbers]


def drawn_in(folder):
    """The whole picture files in a folder and below it, by page number."""
    pictures = {}
    for where, _, names in os.walk(folder):
        for name in names:
            picture = os.path.join(where, name)
            if whole_picture(picture):
                pictures[int(os.path.splitext(name)[0].rsplit("-", 1)[1])] = picture
    return pictures


def whole_picture(path):
    """False for a picture whose process was ended while it wrote."""
    end = {".jpg": b"\xff\xd9", ".png": b"IEND\xaeB`\x82"}.get(os.path.splitext(path)[1])
    if not end or os.path.getsize(path) <= len(end):
        return False
    with open(path, "rb") as picture:
        picture.seek(-len(end), os.SEEK_END)
        return picture.read() == end
