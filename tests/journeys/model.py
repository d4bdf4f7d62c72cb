"""A model on this computer that knows little, for rules in sentences and for questions."""

import json
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

RULE = {
    "name": "File invoices",
    "matchMode": "all",
    "conditions": [{"attribute": "Name", "operator": "contains", "value": "invoice",
                    "sizeUnit": "MB"}],
    "actions": [{"type": "Move to folder", "destination": "~/Invoices", "renamePattern": "",
                 "tag": "none", "sortBy": "none"}],
    "note": "I took “invoices” to mean files with that in their name.",
}
ANSWER = "Turn off Trash old installers, and it stops."
CHANGE = {"type": "turnOffRule", "folder": "Downloads", "rule": "Trash old installers",
          "ruleOrder": [], "description": ""}


def answer_to(asked):
    wanted = asked.get("format", {}).get("properties", {})
    if "conditions" in wanted:
        return json.dumps(RULE)
    if "actions" in wanted:
        return json.dumps({"actions": [CHANGE]})
    if "folders" in wanted:
        return json.dumps({"folders": []})
    return ANSWER


class Handler(BaseHTTPRequestHandler):
    def log_message(self, *_):
        pass

    def _say(self, answer):
        body = json.dumps(answer).encode()
        self.send_response(200)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def do_GET(self):
        self._say({"models": [{"name": "qwen2.5:7b", "model": "qwen2.5:7b", "size": 4683087332,
                               "digest": "0" * 64, "modified_at": "2026-03-02T10:11:12Z",
                               "details": {"format": "gguf", "family": "qwen2"}}]})

    def do_POST(self):
        asked = json.loads(self.rfile.read(int(self.headers["Content-Length"])))
        if self.path == "/api/show":
            return self._say({"details": {"family": "qwen2"}, "capabilities": ["completion"]})
        return self._say({"model": "qwen2.5:7b", "created_at": "2026-03-02T10:12:01Z",
                          "message": {"role": "assistant", "content": answer_to(asked)},
                          "done": True, "done_reason": "stop"})


class Model:
    """On loopback, on a port that the system chooses, for as long as it is entered."""

    def __enter__(self):
        self.server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.host = f"http://127.0.0.1:{self.server.server_port}"
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()
