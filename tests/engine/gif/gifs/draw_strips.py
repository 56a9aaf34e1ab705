#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws what Chromium makes of each GIF of this folder: a PNG strip of its images, one below the other.

Run it without arguments after make_gifs.py, and look at what has changed. It needs chromium.
"""

import base64
import json
import subprocess
import tempfile
from http.server import BaseHTTPRequestHandler, HTTPServer
from pathlib import Path

FOLDER = Path(__file__).resolve().parent

PAGE = """<!doctype html><body><script>
const files = %s;
async function strip(base64) {
  const bytes = Uint8Array.from(atob(base64), c => c.charCodeAt(0));
  const decoder = new ImageDecoder({data: bytes, type: "image/gif"});
  await decoder.completed;
  await decoder.tracks.ready;
  const count = decoder.tracks.selectedTrack.frameCount;
  let canvas, context;
  for (let i = 0; i < count; ++i) {
    const {image} = await decoder.decode({frameIndex: i});
    if (!canvas) {
      canvas = new OffscreenCanvas(image.displayWidth, image.displayHeight * count);
      context = canvas.getContext("2d");
    }
    context.drawImage(image, 0, image.displayHeight * i);
  }
  const blob = await canvas.convertToBlob({type: "image/png"});
  let text = "";
  for (const byte of new Uint8Array(await blob.arrayBuffer())) text += String.fromCharCode(byte);
  return {png: btoa(text)};
}
(async () => {
  const out = {};
  for (const [name, data] of Object.entries(files)) {
    try { out[name] = await strip(data); } catch (error) { out[name] = {error: String(error)}; }
  }
  await fetch("/", {method: "POST", body: JSON.stringify(out)});
})();
</script></body>"""


def drawn(files):
    """What the page sends back when it is done."""
    answers = []

    class Desk(BaseHTTPRequestHandler):
        def do_GET(self):
            self.send_response(200)
            self.end_headers()
            self.wfile.write((PAGE % json.dumps(files)).encode())

        def do_POST(self):
            answers.append(json.loads(self.rfile.read(int(self.headers["Content-Length"]))))
            self.send_response(204)
            self.end_headers()

        def log_message(self, *_):
            pass

    with HTTPServer(("127.0.0.1", 0), Desk) as server, tempfile.TemporaryDirectory() as profile:
        server.timeout = 30
        browser = subprocess.Popen(
            ["chromium", "--headless", "--no-sandbox", "--disable-gpu", f"--user-data-dir={profile}",
             "--force-color-profile=srgb", f"http://127.0.0.1:{server.server_port}/"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            for _ in range(10):
                server.handle_request()
                if answers:
                    return answers[0]
        finally:
            browser.terminate()
            browser.wait()
    raise SystemExit("the browser did not answer")


def main():
    files = {path.stem: base64.b64encode(path.read_bytes()).decode() for path in sorted(FOLDER.glob("*.gif"))}
    for name, strip in drawn(files).items():
        if "error" in strip:
            raise SystemExit(f"{name}: {strip['error']}")
        (FOLDER / f"{name}.png").write_bytes(base64.b64decode(strip["png"]))


main()
