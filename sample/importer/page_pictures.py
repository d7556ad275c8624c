"""Page pictures, drawn by pdftoppm in several processes at once."""
import concurrent.futures
import os
import subprocess
import time

LARGEST_SIDE = 2200  # pixels; larger pages are drawn to fit
QUALITY = 92
# The most pages that are drawn at a resolution: the fewer pages, the finer. Thumbnails need at most 36 dpi.
RESOLUTIONS = ((40, 110), (150, 96), (800, 72), (None, 50))


def resolution_for(page_count):
    return next(dpi for most, dpi in RESOLUTIONS if most is None or page_count <= most)


def runs_of(pages, dpi):
    """Splits the pages into (first, last, arguments) runs that one process draws alike."""
    longest_run = max(1, min(40, len(pages) // (os.cpu_count() or 1)))
    runs = []
    for number, (width, height) in enumerate(pages, 1):
        fits = max(width, height) * dpi / 72 <= LARGEST_SIDE
        how = ("-r", str(dpi)) if fits else ("-scale-to", str(LARGEST_SIDE))
        last = runs[-1] if runs else None
        if last and last[2] == how and number - last[0] < longest_run:
            last[1] = number
        else:
            runs.append([number, number, how])
    return runs


def draw_run(path, folder, run, deadline):
    first, last, how = run
    left = deadline - time.monotonic()
    if left <= 0:
        return
    command = ["pdftoppm", "-q", "-cropbox", "-jpeg", "-jpegopt", f"quality={QUALITY}", *how,
               "-f", str(first), "-l", str(last), path, os.path.join(folder, "page")]
    try:
        subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                       timeout=left, check=False)
    except subprocess.TimeoutExpired:
        pass  # the pages not drawn by now stay without a picture


def draw(path, folder, pages, seconds):
    """Draws every page; `pages` are (width, height) in points. Gives a picture file per page, or None."""
    deadline = time.monotonic() + seconds
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as workers:
        for run in runs_of(pages, resolution_for(len(pages))):
            workers.submit(draw_run, path, folder, run, deadline)
    drawn = {}
    for name in os.listdir(folder):
        stem, extension = os.path.splitext(name)
        picture = os.path.join(folder, name)
        if extension == ".jpg" and whole_picture(picture):
            drawn[int(stem.rsplit("-", 1)[1])] = picture
    return [drawn.get(number) for number in range(1, len(pages) + 1)]


def whole_picture(path):
    """False for a picture whose process was ended while it wrote."""
    with open(path, "rb") as picture:
        picture.seek(0, os.SEEK_END)
        if picture.tell() < 4:
            return False
        picture.seek(-2, os.SEEK_END)
        return picture.read() == b"\xff\xd9"
