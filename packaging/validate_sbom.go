// Validates a bill of materials in SPDX JSON with the SPDX project's own library: scripts/validate-sbom calls it.
package main

import (
	"fmt"
	"log"
	"os"

	"github.com/spdx/tools-golang/json"
	"github.com/spdx/tools-golang/spdxlib"
)

func main() {
	log.SetFlags(0)
	log.SetPrefix("error: ")
	file, err := os.Open(os.Args[1])
	if err != nil {
		log.Fatal(err)
	}
	document, err := json.Read(file)
	if err != nil {
		log.Fatal(err)
	}
	if err := spdxlib.ValidateDocument(document); err != nil {
		log.Fatal(err)
	}
	if len(document.Packages) == 0 || len(document.Relationships) == 0 {
		log.Fatal("it lists nothing")
	}
	fmt.Printf("valid %s with %d packages, %d files and %d relationships\n",
		document.SPDXVersion, len(document.Packages), len(document.Files), len(document.Relationships))
}
