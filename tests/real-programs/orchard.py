"""A small web app for a browser to remember: cookie, local storage, database and a worker that answers offline."""

import os
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from urllib.parse import parse_qsl, urlparse

PAGE = """<!doctype html><title>Orchard</title><h1>Orchard</h1><body data-served="%s">
<script>
const visit = new URLSearchParams(location.search).get('visit');
function database() {
  return new Promise((done, fail) => {
    const opening = indexedDB.open('orchard', 1);
    opening.onupgradeneeded = () => opening.result.createObjectStore('trees');
    opening.onsuccess = () => done(opening.result);
    opening.onerror = () => fail(opening.error);
  });
}
function asked(request) {
  return new Promise((done, fail) => {
    request.onsuccess = () => done(request.result);
    request.onerror = () => fail(request.error);
  });
}
async function plant() {
  localStorage.setItem('tree', 'apple');
  document.cookie = 'tree=apple; max-age=8640000; path=/';
  const db = await database();
  const change = db.transaction('trees', 'readwrite');
  change.objectStore('trees').put('apple '.repeat(30000), 'first');
  await new Promise(done => change.oncomplete = done);
  if (!('serviceWorker' in navigator)) return;
  await navigator.serviceWorker.register('worker.js');
  await navigator.serviceWorker.ready;
  await (await caches.open('orchard')).addAll(['./', 'picture?offline']);
}
async function look() {
  const found = {visit};
  found.local = localStorage.getItem('tree') || 'none';
  found.cookie = document.cookie.includes('apple') ? 'apple' : 'none';
  const db = await database();
  const value = await asked(db.transaction('trees').objectStore('trees').get('first'));
  found.database = value ? 'apple' : 'none';
  found.offline = document.body.dataset.served === 'first' && visit !== '1' ? 'yes' : 'no';
  return found;
}
async function main() {
  let found = {visit, trouble: 'yes'};
  try {
    if (visit === '1') await Promise.race([plant(), new Promise(done => setTimeout(done, 15000))]);
    found = await look();
  } catch (error) { found.trouble = String(error); }
  for (let i = 0; i < 8; ++i) await fetch('picture?' + i).then(r => r.blob()).catch(() => 0);
  await fetch('/report?' + new URLSearchParams(found));
}
main();
</script>
"""
WORKER = """
self.addEventListener('install', () => self.skipWaiting());
self.addEventListener('activate', event => event.waitUntil(self.clients.claim()));
self.addEventListener('fetch', event => {
  if (event.request.mode !== 'navigate') return;
  event.respondWith(caches.match('./').then(known => known || fetch(event.request)));
});
"""


class Site:
    """Serves on a port of its own until closed. `reports` holds the last report of each visit."""

    def __init__(self) -> None:
        self.reports: dict = {}
        site = self

        class Handler(BaseHTTPRequestHandler):
            def do_GET(self) -> None:
                site.answer(self)

            def log_message(self, *_args) -> None:
                pass

        self.server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def close(self) -> None:
        self.server.shutdown()
        self.server.server_close()

    def address(self, visit: int) -> str:
        return f"http://localhost:{self.server.server_port}/app/?visit={visit}"

    def answer(self, request: BaseHTTPRequestHandler) -> None:
        url = urlparse(request.path)
        kind, body, keep = "text/html", b"", "no-store"
        if url.path == "/report":
            found = dict(parse_qsl(url.query))
            self.reports[int(found.pop("visit", 0))] = found
        elif url.path == "/app/worker.js":
            kind, body = "text/javascript", WORKER.encode()
        elif url.path == "/app/picture":
            kind, body, keep = "image/jpeg", os.urandom(400_000), "public, max-age=864000"
        elif url.path == "/app/":
            first = not url.query or "visit=1" in url.query
            body = (PAGE % ("first" if first else "network")).encode()
        request.send_response(200 if body or url.path == "/report" else 404)
        request.send_header("Content-Type", kind)
        request.send_header("Content-Length", str(len(body)))
        request.send_header("Cache-Control", keep)
        request.end_headers()
        try:
            request.wfile.write(body)
        except OSError:
            pass  # the browser has left
