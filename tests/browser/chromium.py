"""Drives a headless Chromium by its debugging protocol, with the standard library alone.

The browser and this program talk over two pipes: JSON texts, each ended by a NUL byte.
"""

import base64
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

TIMEOUT = 60  # seconds that the browser has for one answer
READ_BYTES = 1 << 20

NAMES = ("chromium", "chromium-browser", "google-chrome")


def find():
    """The path of the browser, or None."""
    return next(filter(None, map(shutil.which, NAMES)), None)


class Browser:
    """One browser with a profile of its own, as a context."""

    def __enter__(self):
        self._folder = tempfile.TemporaryDirectory(prefix="browser-")
        to_read, to_write = os.pipe(), os.pipe()

        def connect():
            # The browser reads commands from 3 and writes answers to 4.
            spare = [os.dup(to_write[0]), os.dup(to_read[1])]
            os.dup2(spare[0], 3)
            os.dup2(spare[1], 4)

        # The pages are ours, and containers often don't let a sandbox be made.
        command = [
            find(), "--headless=new", "--no-sandbox", "--remote-debugging-pipe", "--no-first-run",
            "--disable-gpu", "--disable-dev-shm-usage", "--disable-extensions",
            "--disable-background-networking", "--disable-component-update",
            "--user-data-dir=" + self._folder.name, "about:blank",
        ]
        self._process = subprocess.Popen(
            command, preexec_fn=connect, close_fds=False, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            env={**os.environ, "HOME": self._folder.name})
        os.close(to_write[0])
        os.close(to_read[1])
        self._input, self._output = to_write[1], to_read[0]
        self._bytes = b""
        self._last = 0
        self.events = []
        return self

    def __exit__(self, *_):
        try:
            self.call("Browser.close")
            self._process.wait(TIMEOUT)
        except (OSError, RuntimeError, subprocess.TimeoutExpired):
            self._process.kill()
            self._process.wait()
        os.close(self._input)
        os.close(self._output)
        shutil.rmtree(self._folder.name, ignore_errors=True)

    def _receive(self, end):
        while b"\0" not in self._bytes:
            if not select.select([self._output], [], [], max(0, end - time.monotonic()))[0]:
                raise RuntimeError("the browser doesn't answer")
            more = os.read(self._output, READ_BYTES)
            if not more:
                raise RuntimeError("the browser has gone")
            self._bytes += more
        text, self._bytes = self._bytes.split(b"\0", 1)
        return json.loads(text)

    def call(self, method, session=None, **params):
        """Sends a command and returns its result. Events on the way are kept in events."""
        self._last += 1
        message = {"id": self._last, "method": method, "params": params}
        if session:
            message["sessionId"] = session
        data = json.dumps(message).encode() + b"\0"
        while data:
            data = data[os.write(self._input, data):]
        end = time.monotonic() + TIMEOUT
        while True:
            answer = self._receive(end)
            if answer.get("id") == self._last:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer["result"]
            if "method" in answer:
                self.events.append(answer)

    def wait_for(self, method, session):
        """Waits for an event that has come since the events were last cleared."""
        end = time.monotonic() + TIMEOUT
        while not any(e["method"] == method and e.get("sessionId") == session
                      for e in self.events):
            answer = self._receive(end)
            if "method" in answer:
                self.events.append(answer)


class Page:
    """A page of its own."""

    def __init__(self, browser, width=1280, height=900):
        self._browser = browser
        target = browser.call("Target.createTarget", url="about:blank")["targetId"]
        self._session = browser.call("Target.attachToTarget", targetId=target,
                                     flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log"):
            self.call(domain + ".enable")
        self.resize(width, height)

    def call(self, method, **params):
        return self._browser.call(method, self._session, **params)

    def resize(self, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=False)

    def prefer(self, scheme):
        """scheme: "light" or "dark"."""
        self.call("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": scheme}])

    def disable_scripts(self):
        self.call("Emulation.setScriptExecutionDisabled", value=True)

    def open(self, path, fragment=""):
        """Opens a file and waits until it is loaded; returns the seconds that it took."""
        self._browser.events.clear()
        start = time.monotonic()
        self.call("Page.navigate", url="file://" + os.path.abspath(path) + fragment)
        self._browser.wait_for("Page.loadEventFired", self._session)
        return time.monotonic() - start

    def complaints(self):
        """What the page told on the console, exceptions and refusals by its policy included."""
        self.eval("0")  # lets events arrive that are on their way
        told = []
        for event in self._browser.events:
            if event.get("sessionId") != self._session:
                continue
            if event["method"] in ("Runtime.exceptionThrown", "Runtime.consoleAPICalled",
                                   "Log.entryAdded"):
                told.append(json.dumps(event["params"], ensure_ascii=False)[:500])
        return told

    def eval(self, expression):
        """The value of a JavaScript expression; a promise is waited for."""
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(f"{expression}: {answer['exceptionDetails']}")
        return answer["result"].get("value")

    def press(self, key):
        """Presses and releases a key, such as "n" or "ArrowDown"."""
        codes = {"Enter": 13, "ArrowLeft": 37, "ArrowUp": 38, "ArrowRight": 39, "ArrowDown": 40,
                 "Escape": 27, "Tab": 9}
        text = "\r" if key == "Enter" else key if len(key) == 1 else ""
        code = codes.get(key) or ord(key.upper())
        for kind in ("keyDown", "keyUp"):
            self.call("Input.dispatchKeyEvent", type=kind, key=key,
                      windowsVirtualKeyCode=code, text=text if kind == "keyDown" else "")

    def click(self, selector):
        """Clicks the middle of an element with the mouse."""
        box = self.eval(
            f"(() => {{ const e = document.querySelector({json.dumps(selector)});"
            "e.scrollIntoView({block: 'center', inline: 'center'});"
            "const b = e.getBoundingClientRect();"
            "return [b.x + b.width / 2, b.y + b.height / 2]; })()")
        for kind in ("mousePressed", "mouseReleased"):
            self.call("Input.dispatchMouseEvent", type=kind, x=box[0], y=box[1], button="left",
                      clickCount=1)

    def type(self, text):
        self.call("Input.insertText", text=text)

    def screenshot(self, path, whole=False):
        data = self.call("Page.captureScreenshot", format="png", captureBeyondViewport=whole)
        with open(path, "wb") as file:
            file.write(base64.b64decode(data["data"]))
